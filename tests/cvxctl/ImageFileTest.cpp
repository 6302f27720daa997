#include "tools/cvxctl/ImageFile.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <png.h>

namespace fs = std::filesystem;
using Bytes = std::vector<std::uint8_t>;

namespace {

class MemoryImage final : public CvxCPP::Image
{
public:
    MemoryImage(std::uint32_t format, std::uint32_t width, std::uint32_t height, Bytes bytes)
        : m_bytes(std::move(bytes))
    {
        m_info.pixelFormat = format;
        m_info.width = width;
        m_info.height = height;
    }

    const std::uint8_t *GetData() const override { return m_bytes.data(); }
    std::size_t GetSize() const override { return m_bytes.size(); }
    const CvxCPP::ImageInfo &GetInfo() const override { return m_info; }
    std::vector<CvxCPP::ChunkValue> GetChunks() const override { return {}; }

    CvxCPP::ImageInfo m_info;

private:
    Bytes m_bytes;
};

class ImageFileTest : public testing::Test
{
protected:
    ImageFileTest()
    {
        std::string pattern = fs::temp_directory_path() / "cvxctl.XXXXXX";
        directory = mkdtemp(pattern.data());
    }
    ~ImageFileTest() override { fs::remove_all(directory); }

    /// Reads a PNG file as 8-bit RGB.
    Bytes readPng()
    {
        png_image png{};
        png.version = PNG_IMAGE_VERSION;
        if (png_image_begin_read_from_file(&png, file.c_str()) == 0)
            return {};
        isColor = (png.format & PNG_FORMAT_FLAG_COLOR) != 0;
        png.format = PNG_FORMAT_RGB;
        Bytes pixels(PNG_IMAGE_SIZE(png));
        png_image_finish_read(&png, nullptr, pixels.data(), 0, nullptr);
        return pixels;
    }

    fs::path directory;
    fs::path file;
    bool isColor = false;
};

constexpr std::uint32_t mono8 = 0x01080001;
constexpr std::uint32_t mono12 = 0x01100005;
constexpr std::uint32_t bayerRG8 = 0x01080009;
constexpr std::uint32_t rgb8 = 0x02180014;

} // namespace

TEST_F(ImageFileTest, pngContainsThePixelsWithoutThePadding)
{
    file = directory / "grey.png";
    MemoryImage grey(mono8, 2, 2, {1, 2, 99, 3, 4}); // The padding of the last line is missing.
    grey.m_info.paddingX = 1;
    EXPECT_EQ(writePng(grey, file), "");
    EXPECT_EQ(readPng(), (Bytes{1, 1, 1, 2, 2, 2, 3, 3, 3, 4, 4, 4}));
    EXPECT_FALSE(isColor);

    file = directory / "colour.png";
    const Bytes pixels{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
    EXPECT_EQ(writePng(MemoryImage(rgb8, 2, 2, pixels), file), "");
    EXPECT_EQ(readPng(), pixels);
    EXPECT_TRUE(isColor);

    file = directory / "bayer.png";
    EXPECT_EQ(writePng(MemoryImage(bayerRG8, 2, 2, {200, 100, 100, 50}), file), "");
    EXPECT_EQ(readPng(), (Bytes{200, 100, 50, 200, 100, 50, 200, 100, 50, 200, 100, 50}));
}

TEST_F(ImageFileTest, rawFileContainsTheBytesOfAnyFormat)
{
    file = directory / "image.raw";
    const Bytes bytes{1, 2, 3, 4};
    EXPECT_EQ(writeRaw(MemoryImage(mono12, 2, 1, bytes), file), "");
    std::ifstream stream(file, std::ios::binary);
    EXPECT_EQ(Bytes(std::istreambuf_iterator<char>(stream), {}), bytes);
}

TEST_F(ImageFileTest, messageNamesTheProblem)
{
    file = directory / "image.png";
    EXPECT_NE(writePng(MemoryImage(mono12, 2, 2, Bytes(8)), file).find("0x01100005"), std::string::npos);
    EXPECT_EQ(writePng(MemoryImage(mono8, 2, 2, {1, 2, 3}), file), "the image is not complete");
    EXPECT_EQ(writePng(MemoryImage(mono8, 1, 2, {1, 2}), file), "the image is smaller than 2 × 2 pixels");
    EXPECT_FALSE(fs::exists(file));
    const MemoryImage image(mono8, 2, 2, Bytes(4));
    EXPECT_NE(writePng(image, directory / "missing/a.png"), "");
    EXPECT_NE(writeRaw(image, directory / "missing/a.raw").find("No such file"), std::string::npos);
    EXPECT_NE(writeRaw(image, "/dev/full").find("No space"), std::string::npos);
}
