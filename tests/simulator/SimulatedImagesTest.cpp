// These tests stream the images of simulated cameras.

#include "sdk/simulator/EnumerationValues.h"
#include "tests/simulator/TestCamera.h"

#include <cstring>
#include <gtest/gtest.h>

namespace {

using Id = RegisterId;

constexpr std::int64_t mono16 = 0x01100007;
constexpr std::int64_t testPatternWhite = 2;

template <typename Value>
Value valueAt(const TestQueue::Image &image, const GenTL::SINGLE_CHUNK_DATA &chunk)
{
    Value value{};
    EXPECT_EQ(chunk.ChunkLength, sizeof value);
    std::memcpy(&value, image.data.data() + chunk.ChunkOffset, sizeof value);
    return value;
}

} // namespace

/// Provides a camera whose stream has some buffers. The stream starts with start().
class SimulatedImagesTest : public testing::Test
{
protected:
    static constexpr std::size_t bufferSize = 64 * 48 * 2 + 100;

    ~SimulatedImagesTest() override { camera.images().stop(true); }

    void start()
    {
        camera.images().start(queue);
        EXPECT_EQ(camera.execute(Id::AcquisitionStart), GenTL::GC_ERR_SUCCESS);
    }
    TestQueue::Image next() { return queue.next(camera.images()); }

    TestFolder folder;
    TestCamera camera{folder, smallModel()};
    TestQueue queue{3, bufferSize};
};

TEST_F(SimulatedImagesTest, imageHasTheSettingsOfTheCamera)
{
    camera.set(Id::Width, 32);
    camera.set(Id::OffsetX, 8);
    camera.set(Id::Height, 20);
    camera.set(Id::OffsetY, 4);
    camera.set(Id::PixelFormat, mono16);
    camera.set(Id::TestPattern, testPatternWhite);
    start();
    const TestQueue::Image image = next();
    EXPECT_EQ(image.info.width, 32U);
    EXPECT_EQ(image.info.height, 20U);
    EXPECT_EQ(image.info.offsetX, 8U);
    EXPECT_EQ(image.info.offsetY, 4U);
    EXPECT_EQ(image.info.pixelFormat, static_cast<std::uint64_t>(mono16));
    EXPECT_EQ(image.info.sizeFilled, 32U * 20 * 2);
    EXPECT_EQ(image.info.sizeFilled, camera.images().payloadSize());
    EXPECT_FALSE(image.info.isIncomplete);
    EXPECT_EQ(image.info.frameId, 1U);
    for (std::size_t i = 0; i < image.info.sizeFilled; ++i)
        EXPECT_EQ(image.data[i], 0xFF) << i;
    EXPECT_EQ(next().info.frameId, 2U);
}

TEST_F(SimulatedImagesTest, rateLimitSeparatesTheTimeStamps)
{
    camera.setReal(Id::AcquisitionFrameRate, 200);
    start();
    const std::uint64_t first = next().info.timestamp;
    std::uint64_t last = 0;
    for (int image = 0; image < 10; ++image)
        last = next().info.timestamp;
    EXPECT_GE(last - first, 8 * 5'000'000U); // The camera may catch up with one image.
}

TEST_F(SimulatedImagesTest, acquisitionEndsAfterItsImages)
{
    camera.set(Id::AcquisitionMode, multiFrame);
    camera.set(Id::AcquisitionFrameCount, 2);
    camera.set(Id::AcquisitionFrameRateEnable, 0);
    start();
    next();
    next();
    while (camera.integer(Id::AcquisitionActive) != 0) // The test has a time limit.
        std::this_thread::yield();
    EXPECT_FALSE(queue.hasImage());
    EXPECT_EQ(camera.images().startedImages(), 2U);
    camera.execute(Id::AcquisitionStart);
    EXPECT_EQ(next().info.frameId, 1U);
}

TEST_F(SimulatedImagesTest, watcherGetsTheImagesOfTheController)
{
    camera.set(Id::TriggerMode, 1, frameStartTrigger);
    TestCamera watcher(folder, smallModel(), watch);
    TestQueue watched(3, bufferSize);
    watcher.images().start(watched);
    start();
    for (const double exposure : {100.0, 2000.0, 400.0}) {
        camera.setReal(Id::ExposureTime, exposure);
        camera.execute(Id::TriggerSoftware, frameStartTrigger);
        const TestQueue::Image image = next();
        const TestQueue::Image copy = watched.next(watcher.images());
        EXPECT_EQ(copy.info.frameId, image.info.frameId);
        EXPECT_EQ(copy.info.timestamp, image.info.timestamp);
        EXPECT_EQ(copy.data, image.data);
    }
    EXPECT_FALSE(watched.hasImage());
    EXPECT_EQ(watched.underruns(), 0U);
    watcher.images().stop(false);
}

TEST_F(SimulatedImagesTest, watcherTakesNoImagesOfItsOwnAndChangesNoRegisters)
{
    camera.setReal(Id::ExposureTime, 50);
    camera.set(Id::ExposureAuto, autoOnce);
    TestCamera watcher(folder, smallModel(), watch);
    watcher.images().start(queue);
    camera.execute(Id::AcquisitionStart); // No process takes images, as if that of the controller had ended.
    RegisterFile registers(folder.file("registers"), watch, smallModel());
    const std::uint32_t changes = registers.changes();
    registers.announceImage(7, monotonicNow());
    EXPECT_EQ(queue.next(watcher.images()).info.frameId, 7U);
    watcher.images().stop(false);
    EXPECT_FALSE(queue.hasImage());
    EXPECT_EQ(watcher.images().startedImages(), 1U);
    EXPECT_EQ(registers.changes(), changes);
}

TEST_F(SimulatedImagesTest, eachSoftwareTriggerTakesOneImage)
{
    camera.set(Id::TriggerMode, 1, frameStartTrigger);
    camera.setReal(Id::ExposureTime, 100);
    start();
    for (std::uint64_t image = 1; image <= 5; ++image) {
        EXPECT_FALSE(queue.hasImage());
        EXPECT_EQ(camera.execute(Id::TriggerSoftware, frameStartTrigger), GenTL::GC_ERR_SUCCESS);
        EXPECT_EQ(next().info.frameId, image);
    }
    EXPECT_EQ(camera.images().startedImages(), 5U);
}

TEST_F(SimulatedImagesTest, triggersFromBeforeTheStartDoNotCount)
{
    camera.set(Id::TriggerMode, 1, frameStartTrigger);
    camera.execute(Id::TriggerSoftware, frameStartTrigger);
    camera.images().start(queue);
    camera.execute(Id::AcquisitionStart);
    camera.set(Id::TriggerMode, 0, frameStartTrigger);
    next(); // The thread has seen the trigger, and the free run.
    camera.set(Id::AcquisitionMode, singleFrame);
    camera.set(Id::TriggerMode, 1, frameStartTrigger);
    camera.execute(Id::AcquisitionStop);
    camera.execute(Id::TriggerSoftware, frameStartTrigger);
    camera.execute(Id::AcquisitionStart);
    camera.execute(Id::TriggerSoftware, frameStartTrigger);
    while (next().info.frameId != 1) { }
    EXPECT_FALSE(queue.hasImage());
}

TEST_F(SimulatedImagesTest, pulseOfAnotherUserIsATrigger)
{
    camera.set(Id::TriggerMode, 1, frameStartTrigger);
    camera.set(Id::TriggerSource, line1Source, frameStartTrigger);
    start();
    RegisterFile other(folder.file("registers"), GenTL::DEVICE_ACCESS_READONLY, smallModel());
    other.addPulse(lineInput);
    other.addPulse(lineInput + 1);
    EXPECT_EQ(next().info.frameId, 1U);
    EXPECT_EQ(camera.images().startedImages(), 1U);
}

TEST_F(SimulatedImagesTest, chunksFollowTheImage)
{
    camera.set(Id::ChunkModeActive, 1);
    camera.set(Id::ChunkEnable, 0, chunkGain);
    camera.setReal(Id::ExposureTime, 4321);
    start();
    next();
    const TestQueue::Image image = next();
    EXPECT_EQ(image.info.sizeFilled, static_cast<std::size_t>(camera.integer(Id::PayloadSize)));
    ASSERT_EQ(image.info.chunks.size(), 4U);
    EXPECT_EQ(image.info.chunks[0].ChunkLength, 64U * 48);
    EXPECT_EQ(valueAt<std::uint64_t>(image, image.info.chunks[1]), image.info.timestamp);
    EXPECT_EQ(valueAt<double>(image, image.info.chunks[2]), 4321);
    EXPECT_EQ(valueAt<std::uint64_t>(image, image.info.chunks[3]), 2U);
    std::size_t end = image.info.sizeFilled; // Consumers also find the chunks from the end of the buffer.
    for (auto chunk = image.info.chunks.rbegin(); chunk != image.info.chunks.rend(); ++chunk) {
        std::uint32_t trailer[2];
        std::memcpy(trailer, image.data.data() + end - sizeof trailer, sizeof trailer);
        EXPECT_EQ(trailer[0], chunk->ChunkID);
        EXPECT_EQ(trailer[1], chunk->ChunkLength);
        end -= sizeof trailer + trailer[1];
        EXPECT_EQ(static_cast<std::ptrdiff_t>(end), chunk->ChunkOffset);
    }
    EXPECT_EQ(end, 0U);
}

TEST_F(SimulatedImagesTest, missingBuffersAreUnderruns)
{
    TestQueue empty(0, 0);
    camera.setReal(Id::AcquisitionFrameRate, 1000);
    camera.images().start(empty);
    camera.execute(Id::AcquisitionStart);
    while (empty.underruns() < 3) // The test has a time limit.
        std::this_thread::yield();
    camera.images().stop(false);
    EXPECT_EQ(camera.images().lostImages(), 0U);
    EXPECT_EQ(camera.images().startedImages(), empty.underruns());
    camera.images().start(queue);
    EXPECT_GT(next().info.frameId, 3U);
}

TEST_F(SimulatedImagesTest, cameraWithoutLimitsWaitsForBuffers)
{
    camera.set(Id::AcquisitionFrameRateEnable, 0);
    start();
    for (std::uint64_t image = 1; image <= 200; ++image)
        EXPECT_EQ(next().info.frameId, image);
    EXPECT_EQ(queue.underruns(), 0U);
}

TEST_F(SimulatedImagesTest, smallBufferGetsThePartThatFits)
{
    TestQueue small(1, 1000);
    camera.images().start(small);
    camera.execute(Id::AcquisitionStart);
    const FilledImage image = small.next(camera.images()).info;
    EXPECT_EQ(image.sizeFilled, 1000U);
    EXPECT_EQ(image.dataSize, 64U * 48);
    EXPECT_TRUE(image.isIncomplete);
    camera.images().stop(true);
}

TEST_F(SimulatedImagesTest, automaticExposureAndGainReachTheirTarget)
{
    camera.setReal(Id::ExposureTime, 50);
    camera.set(Id::AcquisitionFrameRateEnable, 0);
    camera.set(Id::ExposureAuto, autoOnce);
    start();
    while (camera.integer(Id::ExposureAuto) != autoOff) // The test has a time limit.
        next();
    EXPECT_GT(camera.real(Id::ExposureTime), 500);
}

TEST_F(SimulatedImagesTest, picturesMoveAlsoAtFullSpeed)
{
    camera.set(Id::AcquisitionFrameRateEnable, 0);
    start();
    for (int image = 0; image < 10; ++image)
        next(); // The camera finds out that it cannot render each picture.
    const std::vector<std::uint8_t> first = next().data;
    EXPECT_NE(next().data, first);
}

TEST(SimulatedLineScan, imageHasTheHeightThatIsSet)
{
    SensorKeys keys;
    keys.isLineScan = true;
    const TestFolder folder;
    TestCamera camera(folder, smallModel(keys));
    camera.set(Id::Height, 100);
    TestQueue queue(2, 64 * 100);
    camera.images().start(queue);
    camera.execute(Id::AcquisitionStart);
    EXPECT_EQ(queue.next(camera.images()).info.sizeFilled, 64U * 100);
    camera.images().stop(true);
}
