#pragma once

#include "sdk/camerahost/AcquisitionControl.h"
#include "sdk/camerahost/AnnouncedBuffers.h"
#include "sdk/camerahost/BufferPlan.h"
#include "sdk/camerahost/DataStream.h"
#include "sdk/camerahost/FetchLoop.h"
#include "sdk/camerahost/Requeue.h"
#include "sdk/camerahost/StreamMapping.h"
#include "sdk/protocol/DeviceMessages.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

/// The stream of an opened camera: makes all calls of a start and a stop in the order that producers expect.
/// The stream of a watcher writes nothing to the camera.
/// Use each object on one thread.
class CameraStream
{
public:
    using Failure = RequestFailedReply;
    using Milliseconds = std::chrono::milliseconds;

    CameraStream(const DeviceLibrary &library, GenTL::DEV_HANDLE device, NodeMap &nodes, StreamRole role);

    /// Opens the data stream, locks the features, and determines the buffers. Fails with
    /// DeviceFailure::NotWritable, like start(), if the producer refuses the stream to a watcher.
    std::variant<StreamPreparedReply, Failure> prepare(const PrepareStreamRequest &request);

    /// Announces the buffers and starts the stream, then the camera. Takes over the descriptors. After a
    /// failure, the stream is closed.
    std::optional<Failure> start(const StartStreamRequest &request, const std::vector<int> &descriptors);

    /// Stops the camera and the stream and closes the stream, or does nothing if there is none. Each call of
    /// the producer gets `timeout`.
    void stop(Milliseconds timeout);

    /// Returns true if a call of the producer has not returned in time. The object then must exist until the
    /// process ends, and only abandon() may be called.
    bool isStuck() const { return m_isStuck; }

    /// Returns the number of images of the running stream so far; 0 without a stream.
    std::uint64_t delivered() const;

    /// Returns whether the running stream works; see FetchLoop::takeHealth().
    FetchLoop::Health takeHealth();

    /// Returns a text for people if the program that controls the camera has changed the size or the layout
    /// of the images since prepare(), so that the stream of a watcher has to start again. Call it five times
    /// per second; it reads a slow camera less often, so that this takes at most a tenth of the time.
    std::optional<std::string> findFormatChange();

    /// Stops the stream at once while another thread may hang in a call of the producer, just before the end
    /// of the process. Any thread may call this function.
    void abandon() { m_stream.stopAcquisition(GenTL::ACQ_STOP_FLAGS_KILL); }

private:
    /// What exists from the start to the stop of a stream.
    struct Run
    {
        Run(DataStream &stream, std::unique_ptr<StreamMapping> streamMemory, const ImageSetup &images,
            bool onlyNewest);

        std::unique_ptr<StreamMapping> memory;
        AnnouncedBuffers buffers;
        Requeue requeue;
        FetchLoop fetch;
        bool isAcquiring = false; // DSStartAcquisition has succeeded.
    };

    Failure startFailure(const Problem &problem) const;
    std::optional<Failure> startRun();
    void stopRun(Milliseconds timeout);
    void stopAcquisition(Milliseconds timeout);
    void endThreads(Milliseconds timeout);
    void release();
    void attempt(Milliseconds timeout, std::function<void()> call);
    BufferNeeds readNeeds() const;
    std::uint64_t ticksPerSecond() const;

    const DeviceLibrary &m_library;
    const GenTL::DEV_HANDLE m_device;
    AcquisitionControl m_control;
    DataStream m_stream;
    AcquisitionControl::ImageFormat m_format; // At prepare(); empty unless this is a watcher.
    std::chrono::steady_clock::time_point m_nextFormatCheck;
    bool m_hasChunks = false;
    std::uint32_t m_minBuffers = 1;
    bool m_isStuck = false;
    std::unique_ptr<Run> m_run;
};
