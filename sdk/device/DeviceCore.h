#pragma once

#include "CvxCPP/Device.h"
#include "sdk/device/DeviceErrors.h"
#include "sdk/device/DeviceGate.h"
#include "sdk/device/DeviceNotifier.h"
#include "sdk/device/DeviceOptions.h"
#include "sdk/device/DeviceThread.h"
#include "sdk/device/NodeDirectory.h"
#include "sdk/device/TemporaryValues.h"
#include "sdk/device/WriteJournal.h"

#include <memory>
#include <mutex>
#include <string>
#include <sys/types.h>
#include <utility>
#include <variant>

/// Which camera is opened, and how.
struct DeviceTarget
{
    std::string producerPath; ///< Path of the .cti file.
    std::string interfaceId;
    std::string deviceId;
    CvxCPP::CvxAccess access = CvxCPP::CvxAccessControl;
    std::string label; ///< See cameraLabel().
};

/// One opened camera: its parts, and the requests that the API objects send. DeviceObject and StreamObject
/// share it.
class DeviceCore : public std::enable_shared_from_this<DeviceCore>
{
public:
    DeviceCore(DeviceOptions options, DeviceTarget target);
    ~DeviceCore(); ///< Calls close().
    DeviceCore(const DeviceCore &) = delete;
    DeviceCore &operator=(const DeviceCore &) = delete;

    /// Opens the camera for the first time; see CvxCPP::Camera::Open().
    CvxCPP::CvxResult open();

    /// Begins to close the device: from now on, every function reports CvxErrorClosed.
    void beginClose();
    /// Closes the device and waits until its host has ended and no observer is being called. If an observer
    /// of the device makes the call, does not wait for the observer.
    void close();

    /// Returns true in a process that the program has forked after opening the device. The thread of the
    /// device does not exist there, and the host belongs to the parent, so the child must never destroy the
    /// device.
    bool isForked() const;

    /// Waits for the right to send requests. Returns why the device cannot be used instead.
    std::variant<DeviceGate::Turn, CvxCPP::CvxResult> takeTurn(TimePoint deadline);

    /// Returns why the device cannot be used now.
    CvxCPP::CvxResult refusal() const;

    /// Sends a request and returns the reply or the error. An error that makes the host useless also loses
    /// the device.
    template <typename Reply, typename Request>
    std::variant<Reply, CvxCPP::CvxResult> ask(
        const DeviceGate::Turn &turn, const Request &request, TimePoint deadline)
    {
        auto answer = turn.host().template ask<Reply>(request, deadline);
        if (const auto *failed = std::get_if<RequestFailedReply>(&answer))
            return failure(turn, *failed);
        if (const auto *breakdown = std::get_if<Breakdown>(&answer))
            return failure(turn, *breakdown);
        return std::get<Reply>(std::move(answer));
    }

    /// Starts a stream. Returns the error if that fails.
    std::variant<std::shared_ptr<StreamCore>, CvxCPP::CvxResult> startStream(
        unsigned buffers, CvxCPP::StreamPolicy policy);
    CvxCPP::CvxResult stopStream(const std::shared_ptr<StreamCore> &stream);

    // The parts. Use the journal only during a turn, or on the thread of the device while the device is not
    // open.
    const DeviceOptions options;
    const DeviceTarget target;
    const ResultMaker results;
    DeviceGate gate;
    DeviceNotifier notifier;
    WriteJournal journal;
    TemporaryValues temporary;

    std::shared_ptr<const NodeDirectory> directory() const;
    void setDirectory(std::shared_ptr<const NodeDirectory> directory);

private:
    CvxCPP::CvxResult lostResult() const;
    CvxCPP::CvxResult failure(const DeviceGate::Turn &turn, const RequestFailedReply &failed);
    CvxCPP::CvxResult failure(const DeviceGate::Turn &turn, const Breakdown &breakdown);

    const pid_t m_process;
    DeviceThread m_thread;

    mutable std::mutex m_mutex; // Guards m_directory.
    std::shared_ptr<const NodeDirectory> m_directory;
};
