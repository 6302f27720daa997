#pragma once

#include "CvxCPP/Device.h"
#include "tools/kit/camera/CallThread.h"

#include <atomic>
#include <functional>
#include <memory>
#include <string>
#include <vector>

/// One attempt to open a camera, and all calls for the device that results. The calls are made one after the
/// other on a thread of the session, so a camera that takes long to open delays no other camera.
class DeviceSession
{
public:
    using Call = std::function<CvxCPP::CvxResult(CvxCPP::Device &)>;
    using Done = std::function<void(const CvxCPP::CvxResult &)>;

    /// Called on other threads.
    struct Events
    {
        /// The device is null if opening failed.
        std::function<void(const CvxCPP::CvxResult &, const std::shared_ptr<CvxCPP::Device> &)> opened;
        std::function<void(CvxCPP::DeviceState, const std::string &reason)> stateChanged;
        std::function<void(const std::vector<std::string> &)> nodesChanged;
        std::function<void()> ended; ///< close() is complete.
    };

    /// Begins to open the camera.
    DeviceSession(std::shared_ptr<CvxCPP::Camera> camera, CvxCPP::CvxAccess access, Events events);

    /// Closes the camera. Blocks for at most 3 s, or 6 s during a measurement, and until a running call has
    /// returned.
    ~DeviceSession();

    /// Makes a call after the earlier ones; `done` is called on the session's thread. A call that has not
    /// begun when the session is closed is not made; its result is CvxErrorClosed.
    void run(Call call, Done done);

    /// Closes the camera after the running call.
    void close();

private:
    class Observer;

    void open(CvxCPP::Camera &camera, CvxCPP::CvxAccess access);
    void end();

    const Events m_events;
    std::atomic<bool> m_isClosing = false;
    std::shared_ptr<CvxCPP::Device> m_device; // Only used on the session's thread.
    CallThread m_calls; // The last member, because its calls use the others.
};
