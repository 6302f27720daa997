#pragma once

#include "CvxCPP/Device.h"
#include "sdk/device/HostChannel.h"
#include "sdk/device/HostRunner.h"
#include "sdk/process/Timing.h"

#include <cstdint>
#include <future>
#include <string>
#include <thread>

class DeviceCore;
struct RestoredDevice;

/// The thread of an opened camera: starts its host, waits for notices and failures while the program sends
/// the requests, opens a lost camera again, and ends the host.
class DeviceThread
{
public:
    explicit DeviceThread(DeviceCore &core);
    ~DeviceThread(); ///< The thread must have been joined.
    DeviceThread(const DeviceThread &) = delete;
    DeviceThread &operator=(const DeviceThread &) = delete;

    /// Starts the thread and waits until the camera is open or cannot be opened. Throws std::system_error if
    /// no thread can be started.
    CvxCPP::CvxResult open();

    /// The longest time after which DeviceGate::lossReason() tells how a host has ended.
    static constexpr Milliseconds maxExitTime{1000};

    /// Waits until the thread has ended, which is soon after DeviceGate::close(). Any thread may call this
    /// function.
    void join();

private:
    // All these functions run on the thread.
    void run(std::promise<CvxCPP::CvxResult> opened);
    CvxCPP::CvxResult openFirst();
    // The texts of these results do not name the camera.
    CvxCPP::CvxResult openHost();
    CvxCPP::CvxResult openFailure(const Breakdown &breakdown);
    void serve();
    void watch();
    void checkHost();
    void readNotices();
    void handleLoss();
    std::string lossSentence();
    void reopen();
    bool finishReopening(const RestoredDevice &restored);
    void reopeningFailed(const std::string &reason);
    void waitForWake(TimePoint until);
    void closeHost();
    void endHost(TimePoint deadline);

    DeviceCore &m_core;
    HostRunner m_runner;
    std::uint64_t m_hostNumber = 0;
    std::uint64_t m_seenTurns = 0; // Number of turns when the thread last looked.

    std::mutex m_joinMutex; // Guards m_thread.
    std::thread m_thread;
};
