#include "sdk/device/ImageQueue.h"

#include <cstring>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

using namespace CvxCPP;

namespace {

constexpr std::uint32_t buffers = 4;
constexpr std::uint64_t bufferSize = 4096;

/// Hands over images as a host does.
class ImageQueueTest : public testing::Test
{
protected:
    ImageQueue queue(StreamPolicy policy = StreamPolicy::EveryImage)
    {
        return {memory, std::make_shared<const ChunkDecoder>(std::vector<ChunkFeature>()), policy};
    }

    ImageRecord &record(std::uint32_t buffer)
    {
        ImageRecord &record = memory->ring().record(buffer);
        record.imageSize = 100;
        record.frameId = buffer + 1000;
        return record;
    }

    void push(std::uint32_t buffer)
    {
        record(buffer);
        memory->ring().push(buffer);
    }

    std::vector<std::uint32_t> released()
    {
        StreamRing::BufferSet set{};
        memory->ring().takeReleased(set);
        std::vector<std::uint32_t> found;
        for (std::uint32_t i = 0; i < StreamRing::maxBuffers; ++i) {
            if (set[i / 64] >> i % 64 & 1U)
                found.push_back(i);
        }
        return found;
    }

    static std::uint64_t frameOf(const ImageQueue::Taken &taken)
    {
        return taken.image ? taken.image->GetInfo().frameId : 0;
    }

    std::shared_ptr<StreamMemory> memory = StreamMemory::create(buffers, bufferSize);
};

using Buffers = std::vector<std::uint32_t>;

} // namespace

TEST_F(ImageQueueTest, everyImageIsTakenInOrder)
{
    const ImageQueue images = queue();
    EXPECT_EQ(images.take().image, nullptr);
    push(2);
    push(0);
    auto first = images.take(), second = images.take();
    EXPECT_EQ(frameOf(first), 1002U);
    EXPECT_EQ(frameOf(second), 1000U);
    EXPECT_EQ(first.skipped + second.skipped, 0U);
    EXPECT_EQ(released(), Buffers()) << "the program holds the buffers";
    second.image = nullptr;
    EXPECT_EQ(released(), Buffers{0});
    push(0);
    EXPECT_EQ(frameOf(images.take()), 1000U) << "a released buffer may come again";
}

TEST_F(ImageQueueTest, newestImageIsTaken)
{
    const ImageQueue images = queue(StreamPolicy::NewestImage);
    for (const std::uint32_t buffer : {1, 3, 0})
        push(buffer);
    const auto taken = images.take();
    EXPECT_EQ(frameOf(taken), 1000U);
    EXPECT_EQ(taken.skipped, 2U);
    EXPECT_EQ(released(), (Buffers{1, 3}));
    EXPECT_EQ(images.take().image, nullptr);
}

TEST_F(ImageQueueTest, imageOutlivesItsStream)
{
    push(1);
    auto image = queue().take().image;
    const std::weak_ptr<StreamMemory> held = memory;
    memory = nullptr;
    EXPECT_EQ(image->GetData()[0], 0);
    EXPECT_FALSE(held.expired());
    image = nullptr;
    EXPECT_TRUE(held.expired());
}

TEST_F(ImageQueueTest, damagedQueuesAreNoticed)
{
    for (const StreamPolicy policy : {StreamPolicy::EveryImage, StreamPolicy::NewestImage}) {
        const ImageQueue images = queue(policy);
        for (const std::uint32_t wild : {buffers, StreamRing::maxBuffers, ~0U}) {
            memory->ring().push(wild);
            const auto taken = images.take();
            EXPECT_EQ(taken.image, nullptr);
            EXPECT_EQ(taken.damage, "has damaged the queue of the images");
        }
        push(1);
        const auto held = images.take();
        push(1);
        EXPECT_NE(images.take().damage, "") << "the program holds this buffer";
        push(2);
        push(2);
        if (policy == StreamPolicy::NewestImage) {
            EXPECT_NE(images.take().damage, "") << "one buffer twice";
        }
        while (memory->ring().pop()) { }
        memory->release(2);
    }
}

TEST_F(ImageQueueTest, queueWithTooManyEntriesIsNoticed)
{
    for (std::uint32_t i = 0; i <= StreamRing::maxBuffers; ++i)
        memory->ring().push(0);
    EXPECT_EQ(queue().take().damage, "has damaged the queue of the images");
}

TEST_F(ImageQueueTest, overwrittenQueueIsNoticed)
{
    std::memset(static_cast<void *>(&memory->ring()), 0xFF, sizeof(StreamRing));
    memory->ring().push(0);
    EXPECT_EQ(queue().take().damage, "has damaged the queue of the images");
}

TEST_F(ImageQueueTest, damagedRecordsAreNoticed)
{
    constexpr std::uint64_t wild = ~0ULL;
    const std::vector<void (*)(ImageRecord &)> damages{
        [](ImageRecord &record) { record.imageSize = bufferSize + 1; },
        [](ImageRecord &record) { record.imageOffset = bufferSize - 99; },
        [](ImageRecord &record) { record.imageOffset = wild; },
        [](ImageRecord &record) { record.imageSize = record.imageOffset = wild; },
        [](ImageRecord &record) { record.chunkCount = ImageRecord::maxChunks + 1; },
        [](ImageRecord &record) { record.chunkCount = ~0U; },
        [](ImageRecord &record) {
            record.chunkCount = 2;
            record.chunks[1] = {1, 1, bufferSize};
        },
        [](ImageRecord &record) {
            record.chunkCount = 1;
            record.chunks[0] = {1, wild, 2};
        }};
    for (const auto damage : damages) {
        memory = StreamMemory::create(buffers, bufferSize);
        record(0) = {};
        damage(record(0));
        memory->ring().push(0);
        EXPECT_EQ(queue().take().damage, "has damaged the description of an image");
    }
}

TEST_F(ImageQueueTest, picturesAndChunksMayFillTheBuffer)
{
    ImageRecord &full = record(3);
    full.imageSize = bufferSize;
    full.chunkCount = ImageRecord::maxChunks;
    full.chunks[31] = {1, bufferSize, 0};
    memory->ring().push(3);
    const auto taken = queue().take();
    ASSERT_NE(taken.image, nullptr);
    EXPECT_EQ(taken.image->GetSize(), bufferSize);
    EXPECT_EQ(taken.image->GetData()[bufferSize - 1], 0);
}

TEST(StreamMemoryTest, hostCannotShrinkTheMemory)
{
    const auto memory = StreamMemory::create(2, 4096);
    for (const int descriptor : memory->descriptors()) {
        EXPECT_NE(ftruncate(descriptor, 0), 0);
        EXPECT_EQ(fcntl(descriptor, F_GET_SEALS), F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_SEAL);
    }
}

TEST(StreamMemoryTest, senselessSizesAreRefused)
{
    EXPECT_EQ(StreamMemory::create(0, 4096), nullptr);
    EXPECT_EQ(StreamMemory::create(StreamRing::maxBuffers + 1, 4096), nullptr);
    EXPECT_EQ(StreamMemory::create(2, 0), nullptr);
    EXPECT_EQ(StreamMemory::create(256, ~0ULL / 2), nullptr);
    EXPECT_EQ(StreamMemory::create(2, ~0ULL / 2 + 1), nullptr);
    EXPECT_EQ(StreamMemory::create(2, 1ULL << 50), nullptr);
}
