// Tests how buffers travel between producer and program, with functions that take the place of a producer.

#include "sdk/camerahost/Requeue.h"
#include "tests/sdk/support/Waiting.h"

#include <gtest/gtest.h>
#include <mutex>
#include <new>
#include <sys/mman.h>
#include <unistd.h>
#include <vector>

using namespace GenTL;

namespace {

constexpr std::uint32_t bufferCount = 3;
constexpr std::size_t bufferSize = 4096;

/// What the functions have been called with. There is one stream at a time.
struct Calls
{
    std::mutex mutex;
    std::vector<void *> announced;
    std::vector<void *> queued;
    GC_ERROR queueResult = GC_ERR_SUCCESS;
    GC_ERROR revokeResult = GC_ERR_SUCCESS;
    std::size_t maxAnnounced = bufferCount;

    std::size_t queuedCount()
    {
        const std::lock_guard lock(mutex);
        return queued.size();
    }
    void setQueueResult(GC_ERROR result)
    {
        const std::lock_guard lock(mutex);
        queueResult = result;
    }
};
Calls *calls = nullptr;

GC_ERROR announce(void *, void *memory, std::size_t, void *, void **handle)
{
    if (calls->announced.size() == calls->maxAnnounced)
        return GC_ERR_OUT_OF_MEMORY;
    calls->announced.push_back(memory);
    *handle = memory;
    return GC_ERR_SUCCESS;
}

GC_ERROR queueBuffer(void *, void *buffer)
{
    const std::lock_guard lock(calls->mutex);
    if (calls->queueResult == GC_ERR_SUCCESS)
        calls->queued.push_back(buffer);
    return calls->queueResult;
}

GC_ERROR revoke(void *, void *, void **, void **)
{
    return calls->revokeResult;
}

class StreamBuffers : public testing::Test
{
protected:
    StreamBuffers()
    {
        calls = &m_calls;
        library.DSAnnounceBuffer = announce;
        library.DSQueueBuffer = queueBuffer;
        library.DSRevokeBuffer = revoke;
    }

    static std::unique_ptr<StreamMapping> makeMemory()
    {
        const int pixels = memfd_create("pixels", MFD_CLOEXEC);
        const int ring = memfd_create("ring", MFD_CLOEXEC);
        EXPECT_EQ(ftruncate(pixels, bufferCount * bufferSize), 0);
        EXPECT_EQ(ftruncate(ring, sizeof(StreamRing)), 0);
        return StreamMapping::map({pixels, ring}, bufferCount, bufferSize);
    }

    void queueAll()
    {
        ASSERT_FALSE(buffers.announce(1));
        for (std::uint32_t buffer = 0; buffer < buffers.size(); ++buffer)
            EXPECT_TRUE(buffers.queue(buffer));
    }

    Calls m_calls;
    DeviceLibrary library;
    std::unique_ptr<StreamMapping> memory = makeMemory();
    AnnouncedBuffers buffers{library, nullptr, *memory};
    Requeue requeue{buffers, memory->ring()};
};

} // namespace

TEST_F(StreamBuffers, takenBufferIsTheProducersAgainOnceItIsQueued)
{
    queueAll();
    EXPECT_EQ(buffers.take(memory->buffer(1)), 1U);
    EXPECT_EQ(buffers.queued(), 2U);
    EXPECT_FALSE(buffers.take(memory->buffer(1))) << "the producer reports it twice";
    EXPECT_FALSE(buffers.take(this)) << "not a buffer";
    EXPECT_FALSE(buffers.take(nullptr));
    EXPECT_TRUE(buffers.queue(1));
    EXPECT_EQ(buffers.take(memory->buffer(1)), 1U);
}

TEST_F(StreamBuffers, fewerBuffersAreEnoughIfMemoryIsShort)
{
    m_calls.maxAnnounced = 2;
    EXPECT_FALSE(buffers.announce(2));
    EXPECT_EQ(buffers.size(), 2U);
}

TEST_F(StreamBuffers, tooFewBuffersAreAProblem)
{
    m_calls.maxAnnounced = 1;
    EXPECT_EQ(buffers.announce(2)->code, GC_ERR_OUT_OF_MEMORY);
}

TEST_F(StreamBuffers, bufferThatTheProducerHasAlreadyCountsAsQueued)
{
    ASSERT_FALSE(buffers.announce(1));
    m_calls.setQueueResult(GC_ERR_RESOURCE_IN_USE);
    EXPECT_TRUE(buffers.queue(0));
    EXPECT_EQ(buffers.queued(), 1U);
}

TEST_F(StreamBuffers, memoryStaysInUseIfABufferIsNotRevoked)
{
    queueAll();
    m_calls.revokeResult = GC_ERR_BUSY;
    EXPECT_FALSE(buffers.revoke());
    m_calls.revokeResult = GC_ERR_INVALID_HANDLE; // The producer does not know the buffer any more.
    EXPECT_TRUE(buffers.revoke());
}

TEST_F(StreamBuffers, releasedBufferIsQueuedWhileNobodyFetches)
{
    queueAll();
    requeue.start();
    for (std::uint32_t buffer = 0; buffer < bufferCount; ++buffer)
        ASSERT_TRUE(buffers.take(memory->buffer(buffer)));
    requeue.queueReleased(); // The fetch thread notices the shortage, and then waits for an image.
    memory->ring().release(2);
    EXPECT_TRUE(waitUntil([&] { return m_calls.queuedCount() == bufferCount + 1; }));
    EXPECT_TRUE(requeue.stop(std::chrono::seconds(20)));
    EXPECT_EQ(m_calls.queued.back(), memory->buffer(2));
}

TEST_F(StreamBuffers, refusedBufferIsTriedAgain)
{
    queueAll();
    requeue.start();
    ASSERT_TRUE(buffers.take(memory->buffer(0)));
    m_calls.setQueueResult(GC_ERR_IO);
    memory->ring().release(0);
    requeue.queueReleased();
    EXPECT_TRUE(requeue.takeFailure());
    m_calls.setQueueResult(GC_ERR_SUCCESS);
    requeue.queueReleased();
    EXPECT_TRUE(waitUntil([&] { return buffers.queued() == bufferCount; }));
    EXPECT_TRUE(requeue.stop(std::chrono::seconds(20)));
}

TEST_F(StreamBuffers, memoryThatIsNotAsAnnouncedIsRefused)
{
    const auto map = [](std::size_t pixelBytes, std::size_t ringBytes, std::uint32_t count) {
        const int pixels = memfd_create("pixels", MFD_CLOEXEC);
        const int ring = memfd_create("ring", MFD_CLOEXEC);
        EXPECT_EQ(ftruncate(pixels, static_cast<off_t>(pixelBytes)), 0);
        EXPECT_EQ(ftruncate(ring, static_cast<off_t>(ringBytes)), 0);
        return StreamMapping::map({pixels, ring}, count, bufferSize) != nullptr;
    };
    EXPECT_TRUE(map(2 * bufferSize, sizeof(StreamRing), 2));
    EXPECT_FALSE(map(2 * bufferSize - 1, sizeof(StreamRing), 2));
    EXPECT_FALSE(map(2 * bufferSize, sizeof(StreamRing) - 1, 2));
    EXPECT_FALSE(map(300 * bufferSize, sizeof(StreamRing), 257));
    EXPECT_FALSE(map(bufferSize, sizeof(StreamRing), 0));
    EXPECT_FALSE(StreamMapping::map({}, 2, bufferSize));
}
