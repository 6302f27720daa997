#include "sdk/imagefile/Recorder.h"

#include "ImageFileTest.h"

#include <chrono>
#include <fcntl.h>
#include <functional>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

std::shared_ptr<MemoryImage> numbered(std::uint64_t number, std::uint32_t format = mono8)
{
    auto image = std::make_shared<MemoryImage>(format, 4, 4, ByteList(16, static_cast<std::uint8_t>(number)));
    image->m_info.frameId = number;
    return image;
}

/// Waits until the condition holds. Returns false after a minute.
bool waitUntil(const std::function<bool()> &condition)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::minutes(1);
    while (!condition() && std::chrono::steady_clock::now() < end)
        std::this_thread::yield();
    return condition();
}

class RecorderTest : public ImageFileTest
{ };

} // namespace

TEST_F(RecorderTest, everyImageIsWrittenAndItsBufferReleased)
{
    Recorder recorder;
    ASSERT_EQ(recorder.open(path("a.raw"), someCamera()), "");
    EXPECT_TRUE(jsonOf(path("a.raw.json"))["recording"]["ended"].is_null());
    std::vector<std::weak_ptr<MemoryImage>> images;
    for (std::uint64_t number = 0; number < 100; ++number) {
        auto image = numbered(number);
        image->m_info.isComplete = number % 10 != 0;
        images.push_back(image);
        recorder.add(std::move(image));
    }
    ASSERT_TRUE(waitUntil([&] { return recorder.counters().written == 100; }));
    for (const auto &image : images)
        EXPECT_TRUE(image.expired());
    recorder.skip();
    CvxCPP::StreamStatistics statistics;
    statistics.lost = 5;
    EXPECT_EQ(recorder.finish(statistics), "");

    const RecorderCounters counters = recorder.counters();
    EXPECT_EQ(counters.incomplete, 10U);
    EXPECT_EQ(counters.bytes, 1600U);
    EXPECT_EQ(counters.waiting + counters.unwritten, 0U);
    const ByteList content = contentOf(path("a.raw"));
    ASSERT_EQ(content.size(), 1600U);
    for (std::size_t index = 0; index < content.size(); ++index)
        ASSERT_EQ(content[index], index / 16);
    const nlohmann::json json = jsonOf(path("a.raw.json"));
    EXPECT_EQ(json["recording"]["images"], 100);
    EXPECT_EQ(json["recording"]["incomplete"], 10);
    EXPECT_EQ(json["recording"]["lost"], 5);
    EXPECT_EQ(json["recording"]["skipped"], 1);
    EXPECT_EQ(json["settingsTime"], "2026-01-31T23:59:59.123456Z");
    EXPECT_TRUE(json["recording"]["ended"].is_string());
    EXPECT_EQ(json["camera"]["vendor"], "Orvelle");
}

TEST_F(RecorderTest, slowDiskHoldsUpNobody)
{
    // A pipe that nobody reads takes some images and then blocks the writer.
    const std::string pipe = path("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const int reader = open(pipe.c_str(), O_RDWR);
    Recorder recorder;
    ASSERT_EQ(recorder.open(pipe, {}), "");
    constexpr std::uint64_t images = 10000; // More than a pipe contains.
    for (std::uint64_t number = 0; number < images; ++number)
        recorder.add(numbered(number));
    EXPECT_GT(recorder.counters().waiting, 0U);
    std::thread emptying([&] {
        ByteList buffer(1 << 16);
        for (std::size_t rest = images * 16; rest > 0;)
            rest -= static_cast<std::size_t>(read(reader, buffer.data(), buffer.size()));
    });
    EXPECT_EQ(recorder.finish({}), "");
    emptying.join();
    close(reader);
    EXPECT_EQ(recorder.counters().written, images);
    EXPECT_EQ(names(), std::vector<std::string>{"pipe"}); // Neither index nor sidecar.
}

TEST_F(RecorderTest, imagesAfterAFailureAreCounted)
{
    Recorder recorder;
    ASSERT_EQ(recorder.open(path("a.tif"), {}), "");
    recorder.add(numbered(1));
    recorder.add(numbered(2, unknownFormat));
    ASSERT_TRUE(waitUntil([&] { return !recorder.problem().empty(); }));
    recorder.add(numbered(3));
    EXPECT_NE(recorder.finish({}).find("0x81080001"), std::string::npos);
    EXPECT_EQ(recorder.counters().written, 1U);
    EXPECT_EQ(recorder.counters().unwritten, 2U);
    EXPECT_EQ(outputOf("identify -format '%wx%h\n' " + path("a.tif")), "4x4\n");
    EXPECT_EQ(jsonOf(path("a.tif.json"))["recording"]["unwritten"], 2);
    EXPECT_TRUE(jsonOf(path("a.tif.json"))["recording"]["problem"].is_string());
}

TEST_F(RecorderTest, missingFolderIsReportedAtOnce)
{
    EXPECT_NE(Recorder().open(path("missing/a.raw"), {}).find("create the folder first"), std::string::npos);
}
