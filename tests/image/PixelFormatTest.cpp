#include "sdk/image/ImageConverter.h"
#include "sdk/image/PixelLayout.h"
#include "tests/image/ReferenceFormats.h"

#include <gtest/gtest.h>

TEST(PixelFormat, tableMatchesTheNamingConvention)
{
    for (const ReferenceFormat &expected : referenceFormats()) {
        SCOPED_TRACE(expected.name);
        const PixelFormat *const format = findPixelFormat(expected.code);
        ASSERT_NE(format, nullptr);
        EXPECT_STREQ(format->name, expected.name);
        EXPECT_EQ(format->kind, expected.kind);
        EXPECT_EQ(format->depth, expected.depth);
        EXPECT_EQ(ImageConverter::wordChannels(expected.code), format->components);
        EXPECT_EQ(findPixelFormat(std::string_view(expected.name)), format);
    }
    const PixelLayoutTable table = pixelLayouts();
    EXPECT_EQ(referenceFormats().size(), static_cast<std::size_t>(table.end() - table.begin()));
}

TEST(PixelFormat, oldNamesMeanTheSameFormats)
{
    const std::vector<std::pair<std::string_view, std::string_view>> names
        = {{"RGB8Packed", "RGB8"}, {"BGR8Packed", "BGR8"}, {"RGBA8Packed", "RGBa8"},
            {"YUV422Packed", "YUV422_8_UYVY"}, {"YUV422YUYVPacked", "YUV422_8"},
            {"YUV411Packed", "YUV411_8_UYYVYY"}, {"YUV444Packed", "YUV8_UYV"}, {"RGB10V2Packed", "RGB10p32"}};
    for (const auto &[oldName, name] : names) {
        ASSERT_NE(findPixelFormat(name), nullptr) << name;
        EXPECT_EQ(findPixelFormat(oldName), findPixelFormat(name)) << oldName;
    }
}

TEST(PixelFormat, unknownCodesAndNamesHaveNoRow)
{
    EXPECT_EQ(findPixelFormat(0), nullptr);
    EXPECT_EQ(findPixelFormat(0x81080001), nullptr);
    EXPECT_EQ(findPixelFormat(""), nullptr);
    EXPECT_EQ(findPixelFormat("mono8"), nullptr);
}
