#include "tests/device/DeviceTest.h"

#include <future>
#include <set>
#include <thread>

using namespace CvxCPP;
using namespace std::chrono_literals;

namespace {

class StreamTest : public DeviceTest
{
protected:
    std::shared_ptr<const Image> next(Stream &from)
    {
        std::shared_ptr<const Image> image;
        const CvxResult result = from.WaitForImage(20s, image);
        EXPECT_TRUE(result) << result.text;
        return image;
    }

    std::uint64_t nextFrame(Stream &from)
    {
        const auto image = next(from);
        return image ? image->GetInfo().frameId : 0;
    }

    StreamStatistics statistics(const Stream &of)
    {
        StreamStatistics statistics;
        EXPECT_TRUE(of.GetStatistics(statistics));
        return statistics;
    }

    std::shared_ptr<Device> device = opened();
};

} // namespace

TEST_F(StreamTest, imagesArrive)
{
    const auto stream = streaming(*device, 5);
    EXPECT_EQ(log(), (Lines{"openDevice net0 D1 1", "prepareStream 5", "startStream every"}));
    ASSERT_TRUE(act(*device, "deliver 2"));
    const auto first = next(*stream), second = next(*stream);
    EXPECT_EQ(first->GetSize(), 64U);
    EXPECT_EQ(std::set<std::uint8_t>(first->GetData(), first->GetData() + 64), (std::set<std::uint8_t>{1}));
    EXPECT_EQ(second->GetData()[63], 2);
    EXPECT_EQ(second->GetInfo().frameId, 2U);
    EXPECT_EQ(second->GetInfo().width, 8U);
    EXPECT_EQ(second->GetInfo().pixelFormat, 0x01080001U);
    EXPECT_TRUE(second->GetInfo().isComplete);
    const auto chunks = second->GetChunks();
    ASSERT_EQ(chunks.size(), 1U);
    EXPECT_EQ(chunks[0].name, "ChunkCounter");
    EXPECT_EQ(chunks[0].value, NodeValue(std::int64_t(2)));
}

TEST_F(StreamTest, buffersAreUsedAgain)
{
    const auto stream = streaming(*device, 2);
    setScript("do deliver 200\n");
    auto delivering = std::async(std::launch::async, [this] { return device->Execute("Do").code; });
    for (std::uint64_t frame = 1; frame <= 200; ++frame)
        ASSERT_EQ(nextFrame(*stream), frame);
    EXPECT_EQ(delivering.get(), CvxErrorSuccess);
    const StreamStatistics counters = statistics(*stream);
    EXPECT_EQ(counters.delivered, 200U);
    EXPECT_EQ(counters.bytes, 200U * 64);
    EXPECT_EQ(counters.skipped, 0U);
    EXPECT_GT(counters.imagesPerSecond, 0);
    EXPECT_GT(counters.bytesPerSecond, counters.imagesPerSecond);
}

TEST_F(StreamTest, newestImageSkipsOlderOnes)
{
    const auto stream = streaming(*device, 4, StreamPolicy::NewestImage);
    EXPECT_EQ(log().back(), "startStream newest");
    ASSERT_TRUE(act(*device, "deliver 3"));
    EXPECT_EQ(nextFrame(*stream), 3U);
    EXPECT_EQ(statistics(*stream).skipped, 2U);
}

TEST_F(StreamTest, waitingEndsAtTheTimeout)
{
    const auto stream = streaming(*device);
    std::shared_ptr<const Image> image;
    for (const auto timeout : {0ms, 20ms, -5ms}) {
        const CvxResult result = stream->WaitForImage(timeout, image);
        EXPECT_EQ(result.code, CvxErrorTimeout);
        EXPECT_EQ(image, nullptr);
    }
}

TEST_F(StreamTest, waitingThreadsShareTheImages)
{
    const auto stream = streaming(*device, 8);
    std::vector<std::future<std::uint64_t>> frames;
    for (int i = 0; i < 4; ++i)
        frames.push_back(std::async(std::launch::async, [&] { return nextFrame(*stream); }));
    ASSERT_TRUE(act(*device, "deliver 4"));
    std::set<std::uint64_t> seen;
    for (auto &frame : frames)
        seen.insert(frame.get());
    EXPECT_EQ(seen, (std::set<std::uint64_t>{1, 2, 3, 4}));
}

TEST_F(StreamTest, stopKeepsImagesAndStatistics)
{
    auto stream = streaming(*device);
    ASSERT_TRUE(act(*device, "deliver 2"));
    const auto held = next(*stream);
    ASSERT_TRUE(stream->Stop());
    EXPECT_EQ(log().back(), "stopStream");
    EXPECT_TRUE(stream->Stop());
    EXPECT_EQ(count("stopStream"), 1U);
    EXPECT_EQ(nextFrame(*stream), 2U) << "this image has arrived before";
    std::shared_ptr<const Image> image;
    EXPECT_EQ(stream->WaitForImage(10s, image).code, CvxErrorClosed);
    EXPECT_EQ(statistics(*stream).delivered, 2U);
    EXPECT_EQ(statistics(*stream).imagesPerSecond, 0);
    stream = nullptr;
    device = nullptr;
    EXPECT_EQ(held->GetData()[0], 1);
}

TEST_F(StreamTest, stopWakesWaitingThreads)
{
    const auto stream = streaming(*device);
    auto waiting = std::async(std::launch::async, [&] {
        std::shared_ptr<const Image> image;
        return stream->WaitForImage(100s, image).code;
    });
    EXPECT_TRUE(stream->Stop());
    EXPECT_EQ(waiting.get(), CvxErrorClosed);
}

TEST_F(StreamTest, onlyOneStreamRunsAtATime)
{
    auto stream = streaming(*device);
    std::shared_ptr<Stream> second;
    const CvxResult result = device->StartStream(4, StreamPolicy::EveryImage, second);
    EXPECT_EQ(result.code, CvxErrorAlreadyStarted);
    EXPECT_EQ(result.text, "Orvelle Kx200 (24030117): The stream is running already.");
    EXPECT_EQ(second, nullptr);
    stream = nullptr;
    EXPECT_EQ(count("stopStream"), 1U);
    EXPECT_NE(streaming(*device), nullptr);
}

TEST_F(StreamTest, numberOfBuffersIsChecked)
{
    std::shared_ptr<Stream> stream;
    for (const unsigned buffers : {0U, 1U, 257U, ~0U})
        EXPECT_EQ(
            device->StartStream(buffers, StreamPolicy::EveryImage, stream).code, CvxErrorInvalidParameter);
    EXPECT_EQ(count("prepareStream"), 0U);
    for (const unsigned buffers : {2U, 256U})
        EXPECT_TRUE(streaming(*device, buffers)->Stop());
}

TEST_F(StreamTest, watchedCameraStreamsUnlessTheProducerRefuses)
{
    device = nullptr;
    access = CvxAccessWatch;
    device = opened();
    EXPECT_NE(streaming(*device), nullptr);
    setScript("prepareStream fail 4 Only the program that controls the camera gets images.\n");
    std::shared_ptr<Stream> stream;
    EXPECT_EQ(device->StartStream(4, StreamPolicy::EveryImage, stream).code, CvxErrorNotWritable);
}

TEST_F(StreamTest, watcherTriesTwiceToStart)
{
    device = nullptr;
    access = CvxAccessWatch;
    device = opened();
    std::shared_ptr<Stream> stream;
    setScript("startStream fail 0 The buffers are too small.\n");
    EXPECT_EQ(device->StartStream(4, StreamPolicy::EveryImage, stream).code, CvxErrorDevice);
    EXPECT_EQ(count("startStream"), 2U);
    EXPECT_EQ(count("prepareStream"), 2U) << "the size of the images has changed";
    EXPECT_EQ(count("stopStream"), 2U);
}

TEST_F(StreamTest, failedStartIsUndone)
{
    std::shared_ptr<Stream> stream;
    setScript("prepareStream fail 3 There is no stream.\n");
    EXPECT_EQ(device->StartStream(4, StreamPolicy::EveryImage, stream).code, CvxErrorNotAvailable);
    EXPECT_EQ(count("stopStream"), 0U);
    setScript("startStream fail 0 The camera refuses to start.\n");
    EXPECT_EQ(device->StartStream(4, StreamPolicy::EveryImage, stream).code, CvxErrorDevice);
    EXPECT_EQ(count("stopStream"), 1U);
    for (const char *senseless :
        {"buffers 0\n", "buffers 257\n", "bufferSize 0\n", "bufferSize 99999999999999\n"}) {
        setScript(senseless);
        EXPECT_EQ(device->StartStream(4, StreamPolicy::EveryImage, stream).code, CvxErrorFailed) << senseless;
    }
    EXPECT_EQ(count("stopStream"), 5U);
    EXPECT_EQ(streamMappings(), 0U);
    setScript("buffers 9\n");
    EXPECT_NE(streaming(*device), nullptr) << "the producer needs more buffers";
}
