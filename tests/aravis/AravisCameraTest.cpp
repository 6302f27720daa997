// These tests open the fake camera that libaravis has in the process itself.

#include "sdk/aravis/AravisCamera.h"
#include "tests/aravis/FakeCameraRegisters.h"
#include "tests/aravis/TestBuffers.h"

#include <gtest/gtest.h>

using namespace GenTL;

namespace {

ArvDevice *fakeDevice()
{
    AravisError error;
    return arv_fake_device_new("1", error.receiver());
}

} // namespace

class AravisCameraTest : public testing::Test
{
protected:
    AravisCameraTest()
    {
        writeNumber(camera, FakeCameraRegister::width, 64);
        writeNumber(camera, FakeCameraRegister::height, 32);
        writeNumber(camera, FakeCameraRegister::framePeriod, 1000);
    }

    /// Returns the whole description.
    std::string description()
    {
        const std::string url = camera.descriptionUrls().at(0);
        unsigned long long address = 0, size = 0;
        EXPECT_EQ(std::sscanf(url.c_str(), "Local:camera.xml;%llx;%llx", &address, &size), 2) << url;
        std::string text(size, '\0');
        camera.read(address, text.data(), text.size());
        return text;
    }

    ArvDevice *const device = fakeDevice();
    AravisCamera camera{GObjectPointer<ArvDevice>(device), "Aravis Fake 1", ChunkByteOrder::LittleEndian};
    ImageSource &source = *camera.imageSource();
};

TEST_F(AravisCameraTest, descriptionIsReadThroughThePort)
{
    const std::string text = description();
    EXPECT_EQ(text.find("<?xml"), 0U);
    EXPECT_NE(text.find("</RegisterDescription>"), text.npos);
    char bytes[2] = {};
    const std::uint64_t end = AravisCamera::descriptionAddress + text.size();
    camera.read(end - 1, bytes, 1);
    EXPECT_EQ(bytes[0], text.back());
    EXPECT_EQ(errorOf([&] { camera.read(end - 1, bytes, 2); }), GC_ERR_INVALID_ADDRESS);
    EXPECT_EQ(errorOf([&] { camera.write(end - 1, bytes, 1); }), GC_ERR_ACCESS_DENIED);
}

TEST_F(AravisCameraTest, imagesArriveInTheBuffersOfTheQueue)
{
    ASSERT_EQ(source.payloadSize(), 64U * 32U);
    TestBuffers pool(3, source.payloadSize());
    for (std::uint64_t round = 1; round <= 3; ++round) {
        source.start(pool);
        writeNumber(camera, FakeCameraRegister::acquisition, 1);
        for (int count = 0; count < 10; ++count) {
            const auto delivered = pool.await();
            ASSERT_TRUE(delivered);
            EXPECT_FALSE(delivered->image.isIncomplete);
            EXPECT_EQ(delivered->image.sizeFilled, 64U * 32U);
            EXPECT_EQ(delivered->image.width, 64U);
            EXPECT_EQ(delivered->image.height, 32U);
            EXPECT_EQ(delivered->image.pixelFormat, ARV_PIXEL_FORMAT_MONO_8);
            EXPECT_EQ(delivered->image.payloadType, PAYLOAD_TYPE_IMAGE);
            EXPECT_NE(delivered->buffer.data[0], delivered->buffer.data[63]) << "a ramp";
            pool.queue(source, delivered->buffer);
        }
        writeNumber(camera, FakeCameraRegister::acquisition, 0);
        source.stop(round == 2);
        EXPECT_EQ(pool.taken(), 0U);
        source.bufferQueued(); // May come late, and must not take buffers any more.
        EXPECT_EQ(pool.taken(), 0U);
        EXPECT_GE(source.startedImages(), 10 * round);
        while (pool.delivered() > 0)
            pool.queue(source, pool.await()->buffer);
    }
}

TEST_F(AravisCameraTest, flushedBuffersAreFilledAgain)
{
    TestBuffers pool(3, source.payloadSize());
    source.start(pool);
    ASSERT_EQ(pool.taken(), 3U);
    pool.flushTaken();
    writeNumber(camera, FakeCameraRegister::acquisition, 1);
    EXPECT_TRUE(pool.await());
    source.stop(true);
    EXPECT_EQ(pool.taken(), 0U);
}

TEST_F(AravisCameraTest, lossIsReportedOnce)
{
    int losses = 0;
    camera.setLossHandler([&] { ++losses; });
    EXPECT_EQ(camera.accessStatus(), DEVICE_ACCESS_STATUS_OPEN_READWRITE);
    for (int signal = 0; signal < 2; ++signal)
        g_signal_emit_by_name(device, "control-lost");
    EXPECT_EQ(losses, 1);
    EXPECT_EQ(camera.accessStatus(), DEVICE_ACCESS_STATUS_NOACCESS);
    EXPECT_EQ(errorOf([&] { readNumber(camera, FakeCameraRegister::width); }), GC_ERR_IO);
    EXPECT_EQ(errorOf([&] { source.payloadSize(); }), GC_ERR_IO);
}

TEST_F(AravisCameraTest, lossBeforeTheHandlerIsSetIsReported)
{
    g_signal_emit_by_name(device, "control-lost");
    int losses = 0;
    camera.setLossHandler([&] { ++losses; });
    EXPECT_EQ(losses, 1);
}

TEST(AravisErrorTest, codesAreTranslated)
{
    const struct
    {
        int aravisCode;
        const char *text;
        GC_ERROR expected;
    } cases[] = {
        {ARV_DEVICE_ERROR_TIMEOUT, "timeout", GC_ERR_TIMEOUT},
        {ARV_DEVICE_ERROR_PROTOCOL_ERROR_ACCESS_DENIED, "denied", GC_ERR_ACCESS_DENIED},
        {ARV_DEVICE_ERROR_PROTOCOL_ERROR_INVALID_ADDRESS, "address", GC_ERR_INVALID_ADDRESS},
        {ARV_DEVICE_ERROR_TRANSFER_ERROR, "transfer", GC_ERR_IO},
        {ARV_DEVICE_ERROR_NOT_CONNECTED, "gone", GC_ERR_IO},
        {ARV_DEVICE_ERROR_UNKNOWN, "Failed to claim USB interface: LIBUSB_ERROR_BUSY", GC_ERR_ACCESS_DENIED},
    };
    for (const auto &testCase : cases) {
        AravisError error;
        g_set_error_literal(error.receiver(), ARV_DEVICE_ERROR, testCase.aravisCode, testCase.text);
        const GenTlError translated = error.toGenTl("It fails");
        EXPECT_EQ(translated.code(), testCase.expected) << testCase.text;
        EXPECT_EQ(translated.what(), std::string("It fails: ") + testCase.text + '.');
        EXPECT_EQ(error.isDisconnected(), testCase.aravisCode == ARV_DEVICE_ERROR_NOT_CONNECTED);
    }
}
