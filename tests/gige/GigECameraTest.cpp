// These tests open Aravis's fake GigE Vision camera, which runs as a process. They must run in a network
// namespace that contains only lo.

#include "sdk/gige/GigECamera.h"
#include "tests/aravis/FakeCameraRegisters.h"
#include "tests/aravis/TestBuffers.h"
#include "tests/gige/FakeCamera.h"

#include <future>
#include <gtest/gtest.h>
#include <set>

using namespace GenTL;
using namespace std::chrono_literals;

namespace {

using OpenedCamera = std::unique_ptr<OpenCamera>;

const CameraPlace place{"Aravis Fake", INADDR_LOOPBACK, INADDR_LOOPBACK};

/// Opens the camera; waits until its program has started.
OpenedCamera openStarted(DEVICE_ACCESS_FLAGS access = DEVICE_ACCESS_CONTROL)
{
    for (int attempt = 0; attempt < 20; ++attempt) {
        try {
            return openGigECamera(place, access);
        } catch (const GenTlError &error) {
            if (error.code() != GC_ERR_TIMEOUT)
                throw;
        }
    }
    throw std::runtime_error("The fake camera does not start.");
}

GC_ERROR openingError(DEVICE_ACCESS_FLAGS access)
{
    return errorOf([access] { openGigECamera(place, access); });
}

/// Reads the description through the port, from the camera's own registers.
std::string readDescription(OpenCamera &camera)
{
    const std::string url = camera.descriptionUrls().at(0);
    unsigned long long address = 0, size = 0;
    EXPECT_EQ(std::sscanf(url.c_str(), "Local:%*[^;];%llx;%llx", &address, &size), 2) << url;
    EXPECT_LT(address, AravisCamera::descriptionAddress);
    std::string text(size, '\0');
    camera.read(address, text.data(), text.size());
    return text;
}

void setSize(OpenCamera &camera, std::uint32_t width, std::uint32_t height)
{
    writeNumber(camera, FakeCameraRegister::width, width);
    writeNumber(camera, FakeCameraRegister::height, height);
    writeNumber(camera, FakeCameraRegister::framePeriod, 5000);
}

} // namespace

TEST(GigECamera, registersAndDescriptionAreAccessible)
{
    const FakeCamera fake;
    const OpenedCamera camera = openStarted();
    const std::string description = readDescription(*camera);
    EXPECT_EQ(description.find("<?xml"), 0U);
    EXPECT_NE(description.find("</RegisterDescription>"), description.npos);

    writeNumber(*camera, FakeCameraRegister::width, 0x01020304);
    const std::uint8_t middle[] = {0xA2, 0xA3};
    camera->write(FakeCameraRegister::width + 1, middle, sizeof middle);
    EXPECT_EQ(readNumber(*camera, FakeCameraRegister::width), 0x01A2A304U) << "whole registers are kept";
    std::uint8_t byte = 0;
    camera->read(FakeCameraRegister::width + 2, &byte, 1);
    EXPECT_EQ(byte, 0xA3);
    const std::array<std::uint32_t, 2> size{htonl(64), htonl(48)};
    camera->write(FakeCameraRegister::width, size.data(), sizeof size);
    EXPECT_EQ(readNumber(*camera, FakeCameraRegister::height), 48U);
    EXPECT_EQ(errorOf([&] { readNumber(*camera, 0x100000000); }), GC_ERR_INVALID_ADDRESS);
    EXPECT_TRUE(camera->isBigEndian());
}

TEST(GigECamera, controlledCameraCanOnlyBeWatched)
{
    const FakeCamera fake;
    OpenedCamera camera = openStarted();
    EXPECT_EQ(openingError(DEVICE_ACCESS_CONTROL), GC_ERR_ACCESS_DENIED);
    const OpenedCamera watched = openStarted(DEVICE_ACCESS_READONLY);
    setSize(*camera, 320, 200);
    EXPECT_EQ(readNumber(*watched, FakeCameraRegister::width), 320U);
    EXPECT_EQ(readDescription(*watched), readDescription(*camera));

    camera.reset();
    constexpr std::uint64_t controlRegister = 0x0A00;
    EXPECT_EQ(readNumber(*watched, controlRegister), 0U) << "the camera is free at once";
    camera = openGigECamera(place, DEVICE_ACCESS_EXCLUSIVE);
    EXPECT_EQ(readNumber(*watched, controlRegister), 1U);
    EXPECT_EQ(openingError(DEVICE_ACCESS_EXCLUSIVE), GC_ERR_ACCESS_DENIED);
}

TEST(GigECamera, imagesArriveInTheBuffersOfTheQueue)
{
    const FakeCamera fake;
    const OpenedCamera camera = openStarted();
    setSize(*camera, 320, 200);
    ImageSource &source = *camera->imageSource();
    ASSERT_EQ(source.payloadSize(), 320U * 200U);
    TestBuffers pool(8, source.payloadSize());
    source.start(pool);
    writeNumber(*camera, FakeCameraRegister::acquisition, 1);
    std::set<std::vector<std::uint8_t>> lines;
    std::uint64_t lastFrame = 0, lastTime = 0, missing = 0;
    for (int count = 0; count < 20;) {
        const auto delivered = pool.await();
        ASSERT_TRUE(delivered);
        const FilledImage &image = delivered->image;
        if (image.isIncomplete) { // A busy machine loses packets.
            ASSERT_LT(++missing, 100U);
            pool.queue(source, delivered->buffer);
            continue;
        }
        EXPECT_EQ(image.sizeFilled, 320U * 200U);
        EXPECT_EQ(image.width, 320U);
        EXPECT_EQ(image.height, 200U);
        EXPECT_EQ(image.pixelFormat, ARV_PIXEL_FORMAT_MONO_8);
        if (count++ > 0) {
            const std::uint64_t step = (image.frameId + 0xFFFF - lastFrame) % 0xFFFF;
            EXPECT_TRUE(step == 1 || missing + source.lostImages() > 0) << "frame " << image.frameId;
        }
        EXPECT_GT(image.timestamp, lastTime);
        lastFrame = image.frameId;
        lastTime = image.timestamp;
        lines.emplace(delivered->buffer.data, delivered->buffer.data + 320);
        pool.queue(source, delivered->buffer);
    }
    EXPECT_GT(lines.size(), 10U) << "the picture moves";
    writeNumber(*camera, FakeCameraRegister::acquisition, 0);
    source.stop(false);
    EXPECT_EQ(pool.taken(), 0U);
}

TEST(GigECamera, packetsOf60000BytesArrive)
{
    const FakeCamera fake;
    const OpenedCamera camera = openStarted();
    setSize(*camera, 512, 512);
    constexpr std::uint64_t packetSizeRegister = 0x0D04;
    writeNumber(*camera, packetSizeRegister, 60000);
    ImageSource &source = *camera->imageSource();
    TestBuffers pool(4, source.payloadSize());
    source.start(pool);
    writeNumber(*camera, FakeCameraRegister::acquisition, 1);
    ASSERT_TRUE(pool.await());
    EXPECT_EQ(readNumber(*camera, packetSizeRegister) & 0xFFFF, 60000U);
    source.stop(true);
}

TEST(GigECamera, missingPacketsMakeIncompleteImages)
{
    const FakeCamera fake({"--gvsp-lost-ratio", "20"}); // The fake camera does not send packets again.
    const OpenedCamera camera = openStarted();
    setSize(*camera, 512, 512);
    ImageSource &source = *camera->imageSource();
    TestBuffers pool(8, source.payloadSize());
    source.start(pool);
    writeNumber(*camera, FakeCameraRegister::acquisition, 1);
    int incomplete = 0;
    for (int count = 0; count < 100; ++count) {
        const auto delivered = pool.await();
        ASSERT_TRUE(delivered) << count;
        incomplete += delivered->image.isIncomplete ? 1 : 0;
        EXPECT_TRUE(delivered->image.frameId != 0 || count == 0);
        EXPECT_EQ(delivered->image.width, 512U);
        EXPECT_EQ(delivered->image.sizeFilled, 512U * 512U);
        pool.queue(source, delivered->buffer);
    }
    EXPECT_GT(incomplete, 0);
    source.stop(true); // While the camera sends.
    EXPECT_EQ(pool.taken(), 0U);
}

TEST(GigECamera, imagesWithoutABufferAreCounted)
{
    const FakeCamera fake;
    const OpenedCamera camera = openStarted();
    setSize(*camera, 512, 512);
    writeNumber(
        *camera, FakeCameraRegister::framePeriod, 1000); // The next image begins before the buffer is free.
    ImageSource &source = *camera->imageSource();
    TestBuffers pool(1, source.payloadSize());
    source.start(pool);
    writeNumber(*camera, FakeCameraRegister::acquisition, 1);
    const auto end = std::chrono::steady_clock::now() + 30s;
    while (pool.underruns() == 0 && std::chrono::steady_clock::now() < end) {
        const auto delivered = pool.await();
        ASSERT_TRUE(delivered);
        pool.queue(source, delivered->buffer);
    }
    EXPECT_GT(pool.underruns(), 0U);
    source.stop(true);
}

TEST(GigECamera, lossOfTheCameraIsReported)
{
    FakeCamera fake;
    const OpenedCamera camera = openStarted();
    std::promise<void> loss; // Throws if it is set twice.
    camera->setLossHandler([&] { loss.set_value(); });
    setSize(*camera, 64, 64);
    ImageSource &source = *camera->imageSource();
    TestBuffers pool(4, source.payloadSize());
    source.start(pool);
    writeNumber(*camera, FakeCameraRegister::acquisition, 1);
    ASSERT_TRUE(pool.await());
    fake.end();
    EXPECT_EQ(loss.get_future().wait_for(1min), std::future_status::ready);
    EXPECT_EQ(camera->accessStatus(), DEVICE_ACCESS_STATUS_NOACCESS);
    EXPECT_EQ(errorOf([&] { readNumber(*camera, FakeCameraRegister::width); }), GC_ERR_IO);
    source.stop(false);
    EXPECT_EQ(pool.taken(), 0U);
}

TEST(GigECamera, silentCameraCannotBeOpened)
{
    for (const DEVICE_ACCESS_FLAGS access : {DEVICE_ACCESS_READONLY, DEVICE_ACCESS_CONTROL})
        EXPECT_EQ(openingError(access), GC_ERR_TIMEOUT);
}
