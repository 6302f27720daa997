// Tests that the images of producers with a quirk arrive as those of any other producer.

#include "tests/camerahost/QuirkSession.h"

#include <cstring>
#include <gtest/gtest.h>

using namespace GenTL;

namespace {

constexpr std::uint32_t mono8 = 0x01080001;
constexpr std::uint32_t mono12p = 0x010C0047;
constexpr std::uint32_t mono16 = 0x01100007;

/// What the record of an image has to contain.
struct Expected
{
    std::uint32_t width = 64;
    std::uint32_t height = 48;
    std::uint32_t format = mono8;
    std::uint32_t padding = 0;

    std::size_t lineBytes() const { return width * (format >> 16 & 0xFF) / 8; }
};

struct PictureRow : Quirk
{
    Expected expected = {};
};

/// Requires the layout and every byte of the picture. Its first byte contains the number of the image.
void expectPicture(const ReceivedImage &image, const Expected &expected)
{
    const ImageRecord &record = image.record;
    EXPECT_EQ(record.width, expected.width);
    EXPECT_EQ(record.height, expected.height);
    EXPECT_EQ(record.pixelFormat, expected.format);
    EXPECT_EQ(record.paddingX, expected.padding);
    EXPECT_TRUE(record.isComplete);
    const std::size_t line = expected.lineBytes() + expected.padding;
    ASSERT_GE(image.picture.size(), line * expected.height - expected.padding);
    for (std::size_t y = 0; y < expected.height; ++y) {
        for (std::size_t x = 0; x < expected.lineBytes(); ++x)
            ASSERT_EQ(image.picture[y * line + x], (image.picture[0] + x + 3 * y) % 256) << x << ", " << y;
    }
}

/// Streams some images, more than there are buffers.
void expectStream(HostClient &host, const Expected &expected)
{
    ASSERT_TRUE(host.prepareStream()) << host.failure.text;
    ASSERT_TRUE(host.startStream()) << host.failure.text;
    for (int i = 0; i < 8; ++i) {
        const auto image = host.nextImage();
        ASSERT_TRUE(image) << "image " << i;
        ASSERT_NO_FATAL_FAILURE(expectPicture(*image, expected));
    }
    EXPECT_TRUE(host.stopStream()) << host.failure.text;
}

/// Requires that the host closes the camera and ends.
void expectClosed(HostClient &host, const QuirkProducer &producer)
{
    EXPECT_TRUE(host.close());
    EXPECT_EQ(host.waitForEnd(), 0);
    EXPECT_EQ(producer.count("closed A1"), 1U);
    EXPECT_EQ(producer.count("violation"), 0U) << testing::PrintToString(producer.log());
}

const std::vector<std::int32_t> pictureInfos{BUFFER_INFO_WIDTH, BUFFER_INFO_HEIGHT, BUFFER_INFO_XOFFSET,
    BUFFER_INFO_YOFFSET, BUFFER_INFO_XPADDING, BUFFER_INFO_YPADDING, BUFFER_INFO_PIXELFORMAT,
    BUFFER_INFO_PIXELFORMAT_NAMESPACE, BUFFER_INFO_DELIVERED_IMAGEHEIGHT, BUFFER_INFO_TLTYPE,
    BUFFER_INFO_CONTAINS_CHUNKDATA};
const std::vector<std::int32_t> sizeInfos{BUFFER_INFO_SIZE_FILLED, BUFFER_INFO_WIDTH, BUFFER_INFO_HEIGHT,
    BUFFER_INFO_XOFFSET, BUFFER_INFO_YOFFSET, BUFFER_INFO_XPADDING, BUFFER_INFO_YPADDING, BUFFER_INFO_FRAMEID,
    BUFFER_INFO_IMAGEOFFSET, BUFFER_INFO_PAYLOADTYPE, BUFFER_INFO_PIXELFORMAT, BUFFER_INFO_IMAGEPRESENT,
    BUFFER_INFO_PIXELFORMAT_NAMESPACE, BUFFER_INFO_DELIVERED_IMAGEHEIGHT, BUFFER_INFO_DATA_SIZE,
    BUFFER_INFO_IS_INCOMPLETE, BUFFER_INFO_NEW_DATA, BUFFER_INFO_CONTAINS_CHUNKDATA};
std::vector<std::int32_t> infosFrom(std::int32_t first, std::int32_t last)
{
    std::vector<std::int32_t> infos;
    for (std::int32_t info = first; info <= last; ++info)
        infos.push_back(info);
    return infos;
}

const std::vector<std::string> functionsSince15{"DSGetNumBufferParts", "DSGetBufferPartInfo"};
const std::vector<std::string> functionsSince11{"DSGetNumBufferParts", "DSGetBufferPartInfo",
    "DSGetBufferChunkData", "GCGetNumPortURLs", "GCGetPortURLInfo"};
const std::string wide = "width 640\n"; // Larger than a page, to which the size of a buffer is rounded up.
const std::string withoutPayloadSize = rule("DSGetInfo", STREAM_INFO_DEFINES_PAYLOADSIZE, "value 0");

std::string buffer(std::int32_t command, const std::string &action)
{
    return rule("DSGetBufferInfo", command, action);
}

std::string withoutNode(const std::string &text, const std::string &name)
{
    return replaced(text, "<pFeature>" + name + "</pFeature>", "");
}

const PictureRow pictureRows[] = {
    {{"none", ""}},
    // Versions of GenTL.
    {{"version14", rules("DSGetBufferInfo", {BUFFER_INFO_IS_COMPOSITE}, "error -1009"), functionsSince15}},
    {{"version10",
        rules("DSGetBufferInfo", infosFrom(10, 30), "error -1009")
            + rules("DSGetInfo", infosFrom(11, 13), "error -1009"),
        functionsSince11}},
    {{"optionalFunctionsAbsent", "",
        {"DSFlushQueue", "GCUnregisterEvent", "EventKill", "DevGetInfo", "DSGetInfo", "DSGetBufferInfo",
            "GCGetPortInfo"}}},
    // Infos of the buffers.
    {{"partsNotImplemented", "DSGetNumBufferParts error -1003\n"}},
    {{"partsInvalid", "DSGetNumBufferParts error -1009\n"}},
    {{"noParts", "DSGetNumBufferParts error 0\n"}},
    {{"infosNotImplemented", rules("DSGetBufferInfo", pictureInfos, "error -1003")}},
    {{"infosInvalid", rules("DSGetBufferInfo", pictureInfos, "error -1009")}},
    {{"infosNotAvailable", rules("DSGetBufferInfo", pictureInfos, "error -1014")}},
    {{"infosWithoutData", rules("DSGetBufferInfo", pictureInfos, "error -1008")}},
    {{"infosFail", rules("DSGetBufferInfo", pictureInfos, "error -1001")}},
    {{"infosZero",
        rules("DSGetBufferInfo",
            {BUFFER_INFO_WIDTH, BUFFER_INFO_HEIGHT, BUFFER_INFO_SIZE_FILLED,
                BUFFER_INFO_DELIVERED_IMAGEHEIGHT},
            "value 0")}},
    {{"noSizeFilled", buffer(BUFFER_INFO_SIZE_FILLED, "error -1003")}},
    {{"noSizes", rules("DSGetBufferInfo", {BUFFER_INFO_SIZE_FILLED, BUFFER_INFO_DATA_SIZE}, "error -1003")}},
    {{"payloadUnknown", buffer(BUFFER_INFO_PAYLOADTYPE, "value 0")}},
    {{"payloadChunkData",
        buffer(BUFFER_INFO_PAYLOADTYPE, "value 4") + buffer(BUFFER_INFO_IMAGEPRESENT, "value 0")}},
    {{"sizesOfFourBytes",
         "line-padding 12\nimage-offset 256\n" + rules("DSGetBufferInfo", sizeInfos, "bytes 4")},
        {64, 48, mono8, 12}},
    {{"oldPixelFormat", "format 0x01100007\n" + buffer(BUFFER_INFO_PIXELFORMAT, "value 0x01080001")},
        {64, 48, mono16, 0}},
    {{"otherNamespace", buffer(BUFFER_INFO_PIXELFORMAT_NAMESPACE, "value 1")}},
    // Sizes and positions that do not fit.
    {{"filledTooMuch", buffer(BUFFER_INFO_SIZE_FILLED, "value 1000000000000")}},
    {{"offsetTooLarge", buffer(BUFFER_INFO_IMAGEOFFSET, "value 1000000000000")}},
    {{"widthTooLarge", buffer(BUFFER_INFO_WIDTH, "value 1000000000000")}},
    {{"heightTooLarge",
        rules(
            "DSGetBufferInfo", {BUFFER_INFO_HEIGHT, BUFFER_INFO_DELIVERED_IMAGEHEIGHT}, "value 4294967296")}},
    // Layouts.
    {{"linePadding", "line-padding 12\n"}, {64, 48, mono8, 12}},
    {{"imageOffset", "image-offset 256\n"}},
    {{"packed", "format 0x010C0047\n"}, {64, 48, mono12p, 0}},
    {{"parts", "parts 2\nimage-offset 256\n"}},
    {{"partsWithPaddingInPixels",
         "parts 1\nformat 0x01100007\nline-padding 8\n"
             + rule("DSGetBufferPartInfo", BUFFER_PART_INFO_XPADDING, "value 4")},
        {64, 48, mono16, 8}},
    // Size of the buffers.
    {{"payloadTooSmall", wide + rule("DSGetInfo", STREAM_INFO_PAYLOAD_SIZE, "value 100")},
        {640, 48, mono8, 0}},
    {{"payloadOfCamera", wide + withoutPayloadSize}, {640, 48, mono8, 0}},
    {{"payloadOfCameraStale", wide + withoutPayloadSize + "stale-payload\n"}, {640, 48, mono8, 0}},
    {{"payloadOfCameraZero", wide + withoutPayloadSize, {},
         [](const std::string &text) { return replaced(text, "<Address>0x18<", "<Address>0x80<"); }},
        {640, 48, mono8, 0}},
    {{"payloadOfCameraMissing", wide + withoutPayloadSize, {},
         [](const std::string &text) { return replaced(text, "\"PayloadSize\"", "\"OtherSize\""); }},
        {640, 48, mono8, 0}},
    {{"minimumFails", rule("DSGetInfo", STREAM_INFO_BUF_ANNOUNCE_MIN, "error -1003")}},
    {{"minimumZero", rule("DSGetInfo", STREAM_INFO_BUF_ANNOUNCE_MIN, "value 0")}},
    {{"minimumLarge", "min-buffers 6\n"}},
    // Memory of the buffers.
    {{"memoryOfProducer", "DSAnnounceBuffer error -1013\n"}},
    {{"memoryOfProducerOnly", "", {"DSAnnounceBuffer"}}},
    {{"alignment", "alignment 4096\n"}},
    {{"alignmentNotReported", "alignment 4096\n" + rule("DSGetInfo", STREAM_INFO_BUF_ALIGNMENT, "value 1")}},
    // Opening and locking.
    {{"lockNode", "start-needs-lock\n"}},
    {{"noLockNode", "", {},
        [](const std::string &text) {
            return replaced(withoutNode(text, "TLParamsLocked"), "\"TLParamsLocked\"", "\"Other\"");
        }}},
    {{"exclusiveOnly", "IFOpenDevice:CONTROL error -1003\n"}},
    {{"exclusiveOnlyInvalid", "IFOpenDevice:CONTROL error -1009\n"}},
    {{"unknownAtFirst", "IFOpenDevice@1 error -1007\n"}},
    {{"noAccessReported", rule("DevGetInfo", DEVICE_INFO_ACCESS_STATUS, "value 3")}},
    {{"ownAccessReported", rule("DevGetInfo", DEVICE_INFO_ACCESS_STATUS, "value 1000")}},
    // Events.
    {{"eventOfEightBytes", "event-size 8\n"}},
    {{"eventOf64Bytes", "event-size 64\n"}},
    {{"eventRegistered", "GCRegisterEvent:1@1 error -1004\n"}},
    {{"leftOverKill", "EventGetData@2 error -1012\nEventGetData@7 error -1012\n"}},
    {{"transportErrors", "EventGetData@3-4 error -1010\n"}},
    {{"sameBufferTwice", "image@2 twice\nimage@3 twice\n"}},
    {{"unknownBuffer", "image@2 foreign\n"}},
    // Stopping.
    {{"flushNotImplemented", "DSFlushQueue:4 error -1003\n"}},
    {{"revokeBusy", "DSRevokeBuffer error -1022\n"}},
    {{"revokeInvalid", "DSRevokeBuffer error -1006\n"}},
    {{"stopFails", "GCWritePort:30 error -1010\nDSStopAcquisition:0@1 error -1001\n"}},
};

} // namespace

class QuirkPicture : public testing::TestWithParam<PictureRow>
{ };

TEST_P(QuirkPicture, isRight)
{
    QuirkProducer producer;
    install(producer, GetParam());
    HostClient host(producer.ctiPath());
    ASSERT_TRUE(host.open()) << host.failure.text;
    ASSERT_NO_FATAL_FAILURE(expectStream(host, GetParam().expected));
    ASSERT_NO_FATAL_FAILURE(expectStream(host, GetParam().expected)) << "the second stream";
    expectClosed(host, producer);
}

INSTANTIATE_TEST_SUITE_P(, QuirkPicture, testing::ValuesIn(pictureRows), nameOf);
