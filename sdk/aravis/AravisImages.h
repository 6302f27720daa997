#pragma once

#include "sdk/aravis/ChunkTrailers.h"
#include "sdk/aravis/FrameGaps.h"
#include "sdk/aravis/GObjectPointer.h"
#include "sdk/producer/OpenCamera.h"

#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>

/// Streams the images of a camera with libaravis, directly into the announced buffers.
class AravisImages final : public ImageSource
{
public:
    /// @param device Outlives this object.
    /// @param prepare Called at each start, before the stream is set up.
    /// @param requireConnection Called before the camera is asked; throws if it is lost.
    AravisImages(ArvDevice &device, ChunkByteOrder byteOrder, std::function<void()> prepare,
        std::function<void()> requireConnection);
    ~AravisImages() override;

    std::size_t payloadSize() const override;
    void start(BufferQueue &queue) override;
    void stop(bool isImmediate) override;
    void bufferQueued() override;
    std::uint64_t startedImages() const override;
    std::uint64_t lostImages() const override;

private:
    static void handleEvent(void *self, ArvStreamCallbackType type, ArvBuffer *buffer);
    void bufferStarted();
    void bufferDone(ArvBuffer *buffer);
    void pushFreeBuffers();
    std::uint64_t takeUnderruns(std::uint64_t frameId);

    ArvDevice &m_device;
    const ChunkByteOrder m_byteOrder;
    const std::function<void()> m_prepare;
    const std::function<void()> m_requireConnection;
    mutable std::mutex m_featureMutex; // libaravis evaluates the features of a device without a lock.

    // Guards the members below. It is locked while buffers are taken from the queue, so a queue must not call
    // this object while it holds a mutex of its own.
    mutable std::mutex m_mutex;
    bool m_isStreaming = false; // While it is false, only start() and stop() use the next two members.
    GObjectPointer<ArvStream> m_stream;
    BufferQueue *m_queue = nullptr;
    std::map<const ArvBuffer *, BufferQueue::Buffer> m_taken; // The buffers that libaravis has.
    std::uint64_t m_started = 0; // Images.
    std::uint64_t m_done = 0; // Number of started images that have ended.
    std::condition_variable m_imageDone;
    FilledImage m_configured; // At the last start.
    FrameGaps m_gaps;
    std::uint64_t m_lost = 0; // Images.
    std::uint64_t m_packetsWithoutBuffer = 0; // libaravis's count when the previous image arrived.
};
