#include "sdk/imagefile/ImageFileWriter.h"

#include "ImageFileTest.h"
#include "sdk/image/PixelLayout.h"

#include <fcntl.h>
#include <regex>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using Words = std::vector<std::uint16_t>;

class ImageFileWriterTest : public ImageFileTest
{
protected:
    /// Writes the image and returns the problem.
    std::string write(const CvxCPP::Image &image, const std::string &name, ImageFileFormat format)
    {
        return writer.write(image, path(name), format, someCamera());
    }

    ImageFileWriter writer;
};

} // namespace

TEST_F(ImageFileWriterTest, pngIsReadByOthers)
{
    ASSERT_EQ(write(MemoryImage(mono8, 2, 2, {0, 1, 2, 255}), "8.png", ImageFileFormat::Png8), "");
    EXPECT_EQ(readSamples(path("8.png"), "gray"), (Words{0, 257, 514, 65535}));
    EXPECT_EQ(outputOf("identify -format '%m %z %wx%h %[colorspace]' " + path("8.png")), "PNG 8 2x2 Gray");

    ASSERT_EQ(
        write(MemoryImage(mono10, 2, 1, {0xFF, 0x03, 0x00, 0x02}), "16.png", ImageFileFormat::Png16), "");
    EXPECT_EQ(readSamples(path("16.png"), "gray"), (Words{65535, 32800}));
    // The chunk sBIT has one byte: the significant bits.
    const ByteList content = contentOf(path("16.png"));
    const std::string chunk{'\0', '\0', '\0', '\1', 's', 'B', 'I', 'T', '\12'};
    EXPECT_NE(std::string(content.begin(), content.end()).find(chunk), std::string::npos);

    ASSERT_EQ(write(MemoryImage(bayerRG8, 2, 2, {200, 100, 100, 50}), "c.png", ImageFileFormat::Png8), "");
    EXPECT_EQ(readSamples(path("c.png"), "rgb").size(), 12U);
    EXPECT_EQ(readSamples(path("c.png"), "rgb")[0], 200 * 257);
    ASSERT_EQ(write(MemoryImage(rgb8, 1, 1, {1, 2, 3}), "rgb.png", ImageFileFormat::Png16), "");
    EXPECT_EQ(readSamples(path("rgb.png"), "rgb"), (Words{257, 514, 771}));
}

TEST_F(ImageFileWriterTest, tiffIsReadByOthers)
{
    ASSERT_EQ(write(MemoryImage(mono12p, 2, 1, {0x34, 0x12, 0xAB}), "12.tif", ImageFileFormat::Tiff), "");
    EXPECT_EQ(readSamples(path("12.tif"), "gray"), (Words{0x234, 0xAB1}));
    const std::string info = outputOf("tiffinfo " + path("12.tif"));
    for (const char *line : {"Image Width: 2 Image Length: 1", "Bits/Sample: 16", "Max Sample Value: 4095",
             "Make: Orvelle", "Model: Kx200", "\"pixelFormatName\":\"Mono12p\""})
        EXPECT_NE(info.find(line), std::string::npos) << line << "\n" << info;
    EXPECT_EQ(info.find("Warning"), std::string::npos) << info;

    ASSERT_EQ(write(MemoryImage(bgr8, 1, 2, {3, 2, 1, 6, 5, 4}), "rgb.tif", ImageFileFormat::Tiff), "");
    EXPECT_EQ(readSamples(path("rgb.tif"), "rgb"), (Words{257, 514, 771, 1028, 1285, 1542}));
    EXPECT_EQ(outputOf("identify -format '%m %z %wx%h %[colorspace]' " + path("rgb.tif")), "TIFF 8 1x2 sRGB");
}

TEST_F(ImageFileWriterTest, everyFormatIsWrittenOrRefused)
{
    unsigned refused = 0;
    for (const PixelLayout &layout : pixelLayouts()) {
        const std::uint32_t code = layout.format.code;
        const std::size_t size = 6 * 4 * bitsPerPixel(code) / 8; // Even for the formats that share chroma.
        const MemoryImage image(code, 6, 4, ByteList(size, 0x5A));
        const std::string problem = fileFormatProblem(code);
        refused += problem.empty() ? 0 : 1;
        for (const ImageFileFormat format :
            {ImageFileFormat::Png8, ImageFileFormat::Png16, ImageFileFormat::Tiff})
            EXPECT_EQ(write(image, "a", format), problem) << layout.format.name << formatText(format);
        if (problem.empty()) {
            const std::string seen = outputOf("tiffinfo " + path("a"));
            EXPECT_NE(seen.find("Image Width: 6 Image Length: 4"), std::string::npos) << seen;
        }
    }
    EXPECT_GT(refused, 0U);
}

TEST_F(ImageFileWriterTest, sidecarDescribesTheImage)
{
    MemoryImage image(bayerRG8, 2, 2, {1, 2, 3, 4});
    image.m_info.frameId = 77;
    image.m_info.timestamp = 123'456'789'012'345'678;
    image.m_info.offsetX = 16;
    image.m_chunks = {{"ChunkGain", 1.5}};
    ASSERT_EQ(write(image, "a.raw", ImageFileFormat::Raw), "");
    EXPECT_EQ(contentOf(path("a.raw")), (ByteList{1, 2, 3, 4}));

    nlohmann::json json = jsonOf(path("a.raw.json"));
    const std::string time = json["image"]["time"];
    EXPECT_TRUE(std::regex_match(time, std::regex(R"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{6}Z)"))) << time;
    json["image"].erase("time");
    const nlohmann::json expected = {{"file", "a.raw"}, {"format", "raw"},
        {"camera",
            {{"id", "A.cti/Net/1"}, {"vendor", "Orvelle"}, {"model", "Kx200"}, {"serialNumber", "24030117"},
                {"userName", "Left"}}},
        {"settingsTime", "2026-01-31T23:59:59.123456Z"}, {"settings", {{"ExposureTime", 1500.0}}},
        {"image",
            {{"width", 2}, {"height", 2}, {"offsetX", 16}, {"offsetY", 0}, {"paddingX", 0},
                {"pixelFormat", bayerRG8}, {"pixelFormatName", "BayerRG8"}, {"isBigEndian", false},
                {"isComplete", true}, {"timestamp", 123'456'789'012'345'678}, {"frameId", 77}, {"bytes", 4},
                {"chunks", {{"ChunkGain", 1.5}}}}}};
    EXPECT_EQ(json, expected);
}

TEST_F(ImageFileWriterTest, failureLeavesNoFileAndSaysWhy)
{
    const MemoryImage image(mono8, 2, 2, ByteList(4));
    for (const ImageFileFormat format :
        {ImageFileFormat::Png8, ImageFileFormat::Png16, ImageFileFormat::Tiff, ImageFileFormat::Raw}) {
        EXPECT_EQ(write(image, "missing/a", format),
            "\"" + path("missing/a")
                + "\" cannot be written: No such file or directory; create the folder first");
    }
    // A link, so that nothing can happen to the device itself.
    std::filesystem::create_symlink("/dev/full", path("full"));
    EXPECT_EQ(write(image, "full", ImageFileFormat::Png8),
        "\"" + path("full")
            + "\" cannot be written: No space left on device; free some space or choose another folder");
    std::filesystem::remove(path("full"));
    EXPECT_NE(writer.write(image, "/sys/a.raw", ImageFileFormat::Raw, {}), ""); // Not even root may do that.
    EXPECT_NE(write(MemoryImage(unknownFormat, 2, 2, ByteList(4)), "a.png", ImageFileFormat::Png8), "");
    // The name is taken by a folder, so the finished file cannot get it.
    std::filesystem::create_directory(path("folder"));
    EXPECT_NE(write(image, "folder", ImageFileFormat::Raw), "");
    EXPECT_EQ(names(), (std::vector<std::string>{"folder", "folder.json"}));
}

TEST_F(ImageFileWriterTest, pipesAreWrittenInPlace)
{
    ASSERT_EQ(mkfifo(path("pipe").c_str(), 0600), 0);
    const int pipe = open(path("pipe").c_str(), O_RDWR | O_NONBLOCK);
    EXPECT_EQ(write(MemoryImage(mono8, 2, 1, {1, 2}), "pipe", ImageFileFormat::Raw), "");
    ByteList content(10);
    EXPECT_EQ(read(pipe, content.data(), content.size()), 2);
    EXPECT_EQ(content[1], 2);
    close(pipe);
    EXPECT_EQ(names(), std::vector<std::string>{"pipe"});
}
