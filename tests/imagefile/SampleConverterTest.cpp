#include "sdk/imagefile/SampleConverter.h"

#include "ImageFileTest.h"

#include <cstring>

namespace {

RawImage picture(std::uint32_t format, std::uint32_t width, std::uint32_t height, const ByteList &bytes)
{
    RawImage picture;
    picture.data = bytes.data();
    picture.size = bytes.size();
    picture.width = width;
    picture.height = height;
    picture.pixelFormat = format;
    return picture;
}

/// Returns the values of samples of 8 or 16 bits.
std::vector<unsigned> valuesOf(const Samples &samples)
{
    std::vector<unsigned> values;
    for (std::size_t index = 0; index < samples.size(); index += samples.bits / 8) {
        std::uint16_t word = samples.data[index];
        if (samples.bits == 16)
            std::memcpy(&word, samples.data + index, sizeof word);
        values.push_back(word);
    }
    return values;
}

using Values = std::vector<unsigned>;

} // namespace

TEST(SampleConverterTest, unscaledSamplesAreTheMeasuredValues)
{
    SampleConverter converter;
    const ByteList packed{0x34, 0x12, 0xAB}; // 0x234 and 0xAB1.
    const Samples mono = converter.unscaled(picture(mono12p, 2, 1, packed));
    EXPECT_EQ(valuesOf(mono), (Values{0x234, 0xAB1}));
    EXPECT_EQ(mono.significantBits, 12U);
    EXPECT_FALSE(mono.isColor);

    const ByteList pattern{200, 100, 100, 50};
    const Samples bayer = converter.unscaled(picture(bayerRG8, 2, 2, pattern));
    EXPECT_EQ(valuesOf(bayer), (Values{200, 100, 100, 50}));
    EXPECT_FALSE(bayer.isColor);

    const ByteList colors{3, 2, 1, 6, 5, 4};
    const Samples rgb = converter.unscaled(picture(bgr8, 2, 1, colors));
    EXPECT_EQ(valuesOf(rgb), (Values{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(rgb.bits, 8U);
    EXPECT_TRUE(rgb.isColor);
}

TEST(SampleConverterTest, picturesWithTheLayoutOfTheFileAreNotCopied)
{
    SampleConverter converter;
    const ByteList bytes{1, 2, 3, 0, 5, 0, 7, 0, 9, 0, 11, 0};
    EXPECT_EQ(converter.unscaled(picture(mono8, 3, 4, bytes)).data, bytes.data());
    EXPECT_EQ(converter.unscaled(picture(rgb8, 2, 2, bytes)).data, bytes.data());
    EXPECT_EQ(converter.unscaled(picture(mono10, 2, 3, bytes)).data, bytes.data());

    RawImage padded = picture(mono8, 2, 3, bytes);
    padded.paddingX = 2;
    EXPECT_EQ(valuesOf(converter.unscaled(padded)), (Values{1, 2, 5, 0, 9, 0}));
    RawImage swapped = picture(mono10, 2, 1, bytes);
    swapped.isBigEndian = true;
    EXPECT_EQ(valuesOf(converter.unscaled(swapped)), (Values{0x102, 0x300}));
    RawImage incomplete = picture(mono8, 3, 4, bytes);
    incomplete.size = 10;
    EXPECT_EQ(valuesOf(converter.unscaled(incomplete)), (Values{1, 2, 3, 0, 5, 0, 7, 0, 9, 0, 0, 0}));
}

TEST(SampleConverterTest, fullRangeKeepsTheHighestBits)
{
    SampleConverter converter;
    for (unsigned value = 0; value < 1024; ++value) {
        const ByteList bytes{static_cast<std::uint8_t>(value), static_cast<std::uint8_t>(value >> 8U)};
        const Samples samples = converter.fullRange16(picture(mono10, 1, 1, bytes));
        EXPECT_EQ(valuesOf(samples).front() >> 6U, value);
    }
    const ByteList white{0xFF, 0x03, 0xFF, 0x03, 0xFF, 0x03, 0xFF, 0x03};
    EXPECT_EQ(valuesOf(converter.fullRange16(picture(bayerRG10, 2, 2, white))), Values(12, 0xFFFF));
    EXPECT_EQ(valuesOf(converter.fullRange8(picture(bayerRG10, 2, 2, white))), Values(12, 0xFF));
    EXPECT_EQ(valuesOf(converter.fullRange8(picture(mono10, 2, 2, white))), Values(4, 0xFF));
}

TEST(SampleConverterTest, signedValuesKeepTheirMeaning)
{
    SampleConverter converter;
    constexpr std::uint32_t mono8s = 0x01080002;
    const ByteList bytes{0x80, 0xFF, 0, 0x7F};
    EXPECT_EQ(valuesOf(converter.fullRange16(picture(mono8s, 4, 1, bytes))),
        (Values{0, 127 * 257, 128 * 257, 0xFFFF}));
    const Samples samples = converter.unscaled(picture(mono8s, 4, 1, bytes));
    EXPECT_TRUE(samples.isSigned);
    EXPECT_EQ(valuesOf(samples), (Values{0x80, 0xFF, 0, 0x7F}));
}

TEST(SampleConverterTest, whiteOf565IsWhite)
{
    SampleConverter converter;
    constexpr std::uint32_t rgb565p = 0x02100035;
    const ByteList white{0xFF, 0xFF};
    EXPECT_EQ(valuesOf(converter.unscaled(picture(rgb565p, 1, 1, white))), Values(3, 63));
}

TEST(SampleConverterTest, formatsThatFilesLackAreRefused)
{
    EXPECT_NE(imageFileProblem({}).find("without pixels"), std::string::npos);
    EXPECT_EQ(fileFormatProblem(bayerRG10), "");
    EXPECT_NE(fileFormatProblem(unknownFormat).find("0x81080001"), std::string::npos);
    EXPECT_NE(fileFormatProblem(mono32).find("Mono32"), std::string::npos);
    EXPECT_EQ(unscaledSize(mono12p, 3, 5), 30U);
    EXPECT_EQ(unscaledSize(bgr8, 3, 5), 45U);
}
