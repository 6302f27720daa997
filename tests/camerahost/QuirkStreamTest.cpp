// Tests what a camera host says about images that are unusual, and about streams that cannot start or end.

#include "tests/camerahost/QuirkSession.h"
#include "tests/sdk/support/Waiting.h"

#include <cstring>
#include <gtest/gtest.h>

using namespace GenTL;
using namespace std::chrono_literals;

namespace {

/// A host with an opened camera.
class OpenedHost
{
public:
    explicit OpenedHost(const std::string &script) : producer(script)
    {
        EXPECT_TRUE(client.open()) << client.failure.text;
    }

    /// Starts a stream and returns its first images.
    std::vector<ReceivedImage> stream(std::size_t count)
    {
        EXPECT_TRUE(client.prepareStream() && client.startStream()) << client.failure.text;
        std::vector<ReceivedImage> images;
        while (images.size() < count) {
            auto image = client.nextImage();
            if (!image) {
                ADD_FAILURE() << "only " << images.size() << " images";
                break;
            }
            images.push_back(std::move(*image));
        }
        return images;
    }

    QuirkProducer producer;
    HostClient client{producer.ctiPath()};
};

/// Returns the data of one chunk of an image.
std::vector<std::uint8_t> chunk(const ReceivedImage &image, std::uint64_t id)
{
    for (std::size_t i = 0; i < image.record.chunkCount; ++i) {
        const ChunkPosition &position = image.record.chunks.at(i);
        const auto start = image.buffer.begin() + static_cast<std::ptrdiff_t>(position.offset);
        if (position.id == id)
            return {start, start + static_cast<std::ptrdiff_t>(position.length)};
    }
    return {};
}

template <typename Value>
Value as(const std::vector<std::uint8_t> &bytes)
{
    Value value{};
    EXPECT_EQ(bytes.size(), sizeof value);
    std::memcpy(&value, bytes.data(), std::min(bytes.size(), sizeof value));
    return value;
}

} // namespace

TEST(StreamLocks, areReportedAtStartAndEnd)
{
    OpenedHost host("");
    HostClient &client = host.client;
    for (const bool isStart : {true, false}) {
        client.changedNodes.clear();
        ASSERT_TRUE(isStart ? client.prepareStream() && client.startStream() : client.stopStream());
        client.read("Width"); // The report arrives before this reply.
        EXPECT_EQ(client.changedNodes.count("Width"), 1U) << (isStart ? "start" : "end");
    }
}

class QuirkChunks : public testing::TestWithParam<Quirk>
{ };

TEST_P(QuirkChunks, areFound)
{
    QuirkProducer producer;
    install(producer, GetParam());
    HostClient host(producer.ctiPath());
    ASSERT_TRUE(host.open() && host.write("ChunkModeActive", true)) << host.failure.text;
    ASSERT_TRUE(host.prepareStream() && host.startStream()) << host.failure.text;
    EXPECT_EQ(host.prepared.chunkFeatures.size(), 2U);
    for (std::uint32_t number = 0; number < 3; ++number) {
        const auto image = host.nextImage();
        ASSERT_TRUE(image);
        EXPECT_EQ(as<double>(chunk(*image, 0x1001)), 1000.0);
        EXPECT_EQ(as<std::uint32_t>(chunk(*image, 0x1002)), number);
        EXPECT_EQ(image->record.width, 64U);
        EXPECT_EQ(image->picture.size(), 64U * 48U);
    }
    EXPECT_TRUE(host.stopStream() && host.close());
}

const Quirk chunkRows[] = {
    {"byProducer", ""},
    {"bigEndian", "", {"DSGetBufferChunkData"}},
    {"littleEndian", "chunk-order little\ntechnology U3V\n", {"DSGetBufferChunkData"}},
    {"notImplemented", "DSGetBufferChunkData error -1003\n"},
    {"notParsed", "DSGetBufferChunkData error -1018\n"},
};
INSTANTIATE_TEST_SUITE_P(, QuirkChunks, testing::ValuesIn(chunkRows), nameOf);

TEST(QuirkStream, incompleteImagesAreMarked)
{
    for (const std::string &infos : {std::string(), std::string("incomplete-infos-fail\n"),
             rule("DSGetBufferInfo", BUFFER_INFO_IS_INCOMPLETE, "bytes 4"),
             rule("DSGetBufferInfo", BUFFER_INFO_IS_INCOMPLETE, "bytes 8")}) {
        OpenedHost host("image@2 cut-short\n" + infos);
        const auto images = host.stream(4);
        ASSERT_EQ(images.size(), 4U);
        EXPECT_TRUE(images[0].record.isComplete);
        EXPECT_FALSE(images[1].record.isComplete);
        EXPECT_EQ(images[1].record.frameId, 2U);
        EXPECT_EQ(images[1].picture.size(), 64U * 48U / 2U);
        EXPECT_TRUE(images[2].record.isComplete);
        EXPECT_EQ(host.client.ring().counters.incomplete, 1U);
        EXPECT_TRUE(host.client.stopStream() && host.client.close());
    }
}

TEST(QuirkStream, imagesLargerThanTheBuffersAreIncomplete)
{
    OpenedHost host("");
    ASSERT_TRUE(host.client.prepareStream());
    host.producer.setScript("height 300\nline-padding 4000\n"); // The padding applies to the next images.
    ASSERT_TRUE(host.client.startStream());
    const auto image = host.client.nextImage();
    ASSERT_TRUE(image);
    EXPECT_FALSE(image->record.isComplete);
    EXPECT_TRUE(host.client.stopStream() && host.client.close());
}

class StreamOfAWatcher : public testing::Test
{
protected:
    void start(const std::string &script)
    {
        producer.setScript(script);
        ASSERT_TRUE(client.open(CvxCPP::CvxAccessWatch)) << client.failure.text;
        isStarted = client.prepareStream() && client.startStream();
    }

    QuirkProducer producer;
    HostClient client{producer.ctiPath()};
    bool isStarted = false;
};

TEST_F(StreamOfAWatcher, writesNothing)
{
    start("free-running\n");
    ASSERT_TRUE(isStarted) << client.failure.text;
    const auto image = client.nextImage();
    ASSERT_TRUE(image);
    EXPECT_TRUE(image->record.isComplete);
    EXPECT_EQ(client.read("TLParamsLocked"), CvxCPP::NodeValue(std::int64_t(0)));
    EXPECT_TRUE(client.stopStream() && client.close());
    for (const std::string &call : producer.log()) {
        EXPECT_EQ(call.find("GCWritePort"), std::string::npos) << call;
        EXPECT_EQ(call.find("violation"), std::string::npos) << call;
    }
}

TEST_F(StreamOfAWatcher, endsWhenTheControllerChangesTheFormat)
{
    start("free-running\n");
    ASSERT_TRUE(isStarted && client.nextImage()) << client.failure.text;
    producer.setScript("free-running\nline-padding 8\n");
    EXPECT_NE(client.waitForLoss().value_or("").find("has changed the format"), std::string::npos);
}

TEST_F(StreamOfAWatcher, needsAtMostATenthOfTheTimeToCheckTheFormat)
{
    start("free-running\n");
    ASSERT_TRUE(isStarted) << client.failure.text;
    const auto begin = std::chrono::steady_clock::now();
    producer.setScript("free-running\nGCReadPort:8@1-3 slow 50\nGCReadPort:8@4 crash\n"); // Height.
    EXPECT_TRUE(client.waitForEnd());
    EXPECT_GE(std::chrono::steady_clock::now() - begin, 3 * 10 * 50ms) << "until the fourth check";
}

class RefusedStreamOfAWatcher : public StreamOfAWatcher, public testing::WithParamInterface<const char *>
{ };

TEST_P(RefusedStreamOfAWatcher, isExplained)
{
    start(GetParam());
    EXPECT_FALSE(isStarted);
    EXPECT_EQ(client.failure.failure, DeviceFailure::NotWritable);
    EXPECT_EQ(client.failure.text.find(
                  "The producer gives this camera's images only to a program that controls it. "),
        0U)
        << client.failure.text;
    EXPECT_EQ(client.read("Gain"), CvxCPP::NodeValue(std::int64_t(1))) << "the camera is still open";
    EXPECT_TRUE(client.close());
}

INSTANTIATE_TEST_SUITE_P(, RefusedStreamOfAWatcher,
    testing::Values("streams 0\n", "DevOpenDataStream error -1005\n", "DevOpenDataStream error -1004\n",
        "DSStartAcquisition error -1005\n", "DSStartAcquisition error -1014\n"));

TEST(QuirkStream, lostImagesAreCounted)
{
    OpenedHost host("images 7\ninterval 50000\nframe-ids 65532 65534 65535 1 2 5 6\n");
    host.stream(7);
    EXPECT_EQ(host.client.ring().counters.lost, 3U) << "65533, 3 and 4";
    EXPECT_TRUE(host.client.stopStream() && host.client.close());
}

TEST(QuirkStream, unknownPixelFormatsAreReported)
{
    const struct
    {
        std::string rule;
        std::uint32_t format;
    } rows[] = {
        {rule("DSGetBufferInfo", BUFFER_INFO_PIXELFORMAT, "value 0x810800AB"), 0x810800AB},
        {rule("DSGetBufferInfo", BUFFER_INFO_PIXELFORMAT_NAMESPACE, "value 2"), 0},
    };
    for (const auto &row : rows) {
        OpenedHost host(row.rule);
        const auto images = host.stream(1);
        ASSERT_EQ(images.size(), 1U);
        EXPECT_EQ(images[0].record.pixelFormat, row.format);
        EXPECT_EQ(images[0].record.width, 64U);
        EXPECT_EQ(images[0].picture.size(), 64U * 48U);
    }
}

TEST(QuirkStream, timestampsAreNanoseconds)
{
    for (const std::string &script :
        {std::string(), rule("DSGetBufferInfo", BUFFER_INFO_TIMESTAMP_NS, "error -1003")}) {
        OpenedHost host(script);
        const auto images = host.stream(2);
        ASSERT_EQ(images.size(), 2U);
        EXPECT_EQ(images[0].record.timestamp, 1'000'000U);
        EXPECT_EQ(images[1].record.timestamp, 2'000'000U);
    }
}

TEST(QuirkStream, buffersGrowWithThePicture)
{
    OpenedHost host("");
    host.stream(2);
    EXPECT_FALSE(host.client.write("Width", std::int64_t(640))) << "the stream runs";
    EXPECT_TRUE(host.client.stopStream());
    EXPECT_TRUE(host.client.write("Width", std::int64_t(640))) << host.client.failure.text;
    const auto images = host.stream(6);
    ASSERT_EQ(images.size(), 6U);
    EXPECT_EQ(images[5].picture.size(), 640U * 48U);
    EXPECT_TRUE(images[5].record.isComplete);
}

TEST(QuirkStream, imagesWithoutAFreeBufferAreUnderruns)
{
    OpenedHost host("images 20\n");
    ASSERT_TRUE(host.client.prepareStream() && host.client.startStream());
    EXPECT_TRUE(waitUntil([&] { return host.client.ring().counters.underruns == 16; }))
        << host.client.ring().counters.underruns;
}

TEST(QuirkStream, cameraWithoutImagesIsNotLost)
{
    OpenedHost host("images 0\n");
    ASSERT_TRUE(host.client.prepareStream() && host.client.startStream());
    EXPECT_FALSE(host.client.nextImage(3s)) << "longer than two checks of the camera";
    host.producer.setScript("");
    EXPECT_TRUE(host.client.nextImage());
    EXPECT_TRUE(host.client.stopStream() && host.client.close());
}

/// A quirk that makes the start of a stream fail.
struct StartRow : Quirk
{
    DeviceFailure failure = DeviceFailure::Device;
    const char *text = "the producer's own text";
};

class QuirkStart : public testing::TestWithParam<StartRow>
{ };

TEST_P(QuirkStart, failureIsReportedAndUndone)
{
    QuirkProducer producer;
    install(producer, GetParam());
    HostClient host(producer.ctiPath());
    ASSERT_TRUE(host.open()) << host.failure.text;
    EXPECT_FALSE(host.prepareStream() && host.startStream());
    EXPECT_EQ(host.failure.failure, GetParam().failure) << host.failure.text;
    EXPECT_NE(host.failure.text.find(GetParam().text), std::string::npos) << host.failure.text;
    EXPECT_TRUE(host.write("Width", std::int64_t(128))) << "still locked: " << host.failure.text;

    if (GetParam().missing.empty()) {
        producer.setScript("");
        ASSERT_TRUE(host.prepareStream() && host.startStream()) << host.failure.text;
        EXPECT_TRUE(host.nextImage());
        EXPECT_TRUE(host.stopStream());
    }
    EXPECT_TRUE(host.close());
    EXPECT_EQ(producer.count("violation"), 0U) << testing::PrintToString(producer.log());
}

const StartRow startRows[] = {
    {{"noStream", "streams 0\n"}, DeviceFailure::NotAvailable, "no stream"},
    {{"noStreamFunctions", "", {"DSStartAcquisition"}}, DeviceFailure::NotAvailable, "DSStartAcquisition"},
    {{"countFails", "DevGetNumDataStreams error -1001\n"}},
    {{"idFails", "DevGetDataStreamID error -1001\n"}},
    {{"openFails", "DevOpenDataStream error -1001\n"}},
    {{"streamInUse", "DevOpenDataStream error -1005\n"}, DeviceFailure::InUse},
    {{"announceFails", "DSAnnounceBuffer error -1013\nDSAllocAndAnnounceBuffer error -1003\n"},
        DeviceFailure::NotAvailable},
    {{"noMemory", "DSAnnounceBuffer error -1021\nDSAllocAndAnnounceBuffer error -1021\n"},
        DeviceFailure::NoMemory},
    {{"eventFails", "GCRegisterEvent error -1001\n"}},
    {{"startFails", "DSStartAcquisition error -1016\n"}},
    {{"cameraFails", "GCWritePort:28 error -1010\n"}, DeviceFailure::Device, "AcquisitionStart"},
};
INSTANTIATE_TEST_SUITE_P(, QuirkStart, testing::ValuesIn(startRows), nameOf);
