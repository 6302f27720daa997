#include "sdk/imagefile/SampleConverter.h"

#include "sdk/image/PixelFormat.h"
#include "sdk/image/PixelLayout.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace {

constexpr std::uint32_t rgb8 = 0x02180014;

/// Returns the properties of the samples that SampleConverter::unscaled() makes of a format.
Samples unscaledLayout(const PixelFormat &format)
{
    Samples samples;
    // Luma and chroma become red, green and blue, which every reader understands.
    samples.isColor = format.kind == PixelKind::Rgb || format.kind == PixelKind::Yuv;
    samples.channels = format.kind == PixelKind::Yuv ? 3 : ImageConverter::wordChannels(format.code);
    samples.significantBits = format.depth;
    samples.bits = format.depth <= 8 ? 8 : 16;
    samples.isSigned = findPixelLayout(format.code).number == Number::Signed;
    return samples;
}

/// Returns true if the picture in memory has the layout of the samples already.
bool isStoredAlready(const RawImage &picture, const PixelFormat &format, const Samples &samples)
{
    const bool isPlain = format.kind == PixelKind::Mono || format.kind == PixelKind::Bayer;
    const bool hasLayout
        = format.code == rgb8 || (isPlain && bitsPerPixel(format.code) == samples.bits * samples.channels);
    return hasLayout && picture.paddingX == 0 && (samples.bits == 8 || !picture.isBigEndian)
        && picture.size >= samples.size();
}

/// Scales values of `depth` bits to the full range of 16 bits. The highest bits stay what they are.
void scaleToFullRange(std::uint16_t *values, std::size_t count, unsigned depth)
{
    constexpr std::uint32_t fullRange = 0xFFFF;
    const std::uint32_t largest = (1U << depth) - 1;
    for (std::size_t index = 0; index < count; ++index) {
        const std::uint32_t value = std::min<std::uint32_t>(values[index], largest);
        values[index] = static_cast<std::uint16_t>((value * fullRange + largest / 2) / largest);
    }
}

/// Removes all values of a pixel but the first one, for example the confidence of a depth.
void keepFirstChannel(std::vector<std::uint16_t> &values, unsigned channels)
{
    for (std::size_t pixel = 1; channels > 1 && pixel < values.size() / channels; ++pixel)
        values[pixel] = values[pixel * channels];
    values.resize(values.size() / channels);
}

Region wholePicture(const RawImage &picture)
{
    return {0, 0, picture.width, picture.height};
}

} // namespace

void SampleConverter::setCorrection(const PlacedCorrection &correction)
{
    m_correction = correction;
    m_converter.setCorrection(correction);
}

bool SampleConverter::isCorrected(const RawImage &picture) const
{
    const auto &[correction, offsetX, offsetY] = m_correction;
    return correction
        && correction->problem(picture.pixelFormat, offsetX, offsetY, picture.width, picture.height).empty();
}

Samples SampleConverter::unscaled(const RawImage &picture)
{
    const PixelFormat &format = *findPixelFormat(picture.pixelFormat);
    Samples samples = unscaledLayout(format);
    samples.width = picture.width;
    samples.height = picture.height;
    samples.data = picture.data;
    if (isStoredAlready(picture, format, samples) && !isCorrected(picture))
        return samples;
    // Chroma becomes colours, and the colours of 565 get the same depth.
    const bool isConverted
        = format.kind == PixelKind::Yuv || findPixelLayout(format.code).packing == Packing::Rgb565;
    const std::size_t stride = std::size_t(samples.channels) * picture.width;
    if (samples.bits == 16) {
        m_words.resize(stride * picture.height);
        if (isConverted)
            m_converter.toColorWords(
                picture, wholePicture(picture), Demosaicing::EdgeAware, m_words.data(), stride);
        else
            m_converter.toWords(picture, wholePicture(picture), m_words.data(), stride);
        samples.data = reinterpret_cast<const std::uint8_t *>(m_words.data());
        return samples;
    }
    // Words of one line at a time: they stay in the processor's cache.
    m_words.resize(stride);
    m_bytes.resize(stride * picture.height);
    for (std::uint32_t y = 0; y < picture.height; ++y) {
        const Region line{0, y, picture.width, 1};
        if (isConverted)
            m_converter.toColorWords(picture, line, Demosaicing::EdgeAware, m_words.data(), stride);
        else
            m_converter.toWords(picture, line, m_words.data(), stride);
        std::transform(m_words.begin(), m_words.end(), m_bytes.data() + stride * y,
            [](std::uint16_t word) { return static_cast<std::uint8_t>(word); });
    }
    samples.data = m_bytes.data();
    return samples;
}

Samples SampleConverter::fullRange8(const RawImage &picture)
{
    Samples samples;
    samples.width = picture.width;
    samples.height = picture.height;
    samples.channels = ImageConverter::screenChannels(picture.pixelFormat);
    samples.isColor = samples.channels == 3;
    m_bytes.resize(samples.size());
    m_converter.toScreen(picture,
        {wholePicture(picture), picture.width, picture.height, Demosaicing::EdgeAware}, m_bytes.data(),
        samples.lineSize());
    samples.data = m_bytes.data();
    return samples;
}

Samples SampleConverter::fullRange16(const RawImage &picture)
{
    const PixelFormat &format = *findPixelFormat(picture.pixelFormat);
    Samples samples;
    samples.width = picture.width;
    samples.height = picture.height;
    samples.isColor = ImageConverter::screenChannels(format.code) == 3;
    samples.channels = samples.isColor ? 3 : 1;
    samples.bits = 16;
    samples.significantBits = format.depth;
    constexpr unsigned words = 3; // A grey value is repeated.
    const std::size_t stride = std::size_t(words) * picture.width;
    m_words.resize(stride * picture.height);
    m_converter.toColorWords(picture, wholePicture(picture), Demosaicing::EdgeAware, m_words.data(), stride);
    if (!samples.isColor)
        keepFirstChannel(m_words, words);
    scaleToFullRange(m_words.data(), m_words.size(), format.depth);
    samples.data = reinterpret_cast<const std::uint8_t *>(m_words.data());
    return samples;
}

std::string fileFormatProblem(std::uint32_t pixelFormat)
{
    const PixelFormat *const format = findPixelFormat(pixelFormat);
    constexpr char advice[] = "; write a raw file, or set PixelFormat to another format";
    if (!format || format->kind == PixelKind::Raw)
        return "the layout of the pixel format " + pixelFormatName(pixelFormat) + " is not known" + advice;
    if (format->depth > 16)
        return "the pixel format " + pixelFormatName(pixelFormat) + " has values of more than 16 bits"
            + advice;
    return {};
}

std::string imageFileProblem(const CvxCPP::ImageInfo &info)
{
    if (info.width == 0 || info.height == 0)
        return "the camera has sent an image without pixels; check its settings, or write a raw file";
    return fileFormatProblem(info.pixelFormat);
}

std::uint64_t unscaledSize(std::uint32_t pixelFormat, std::uint32_t width, std::uint32_t height)
{
    Samples samples = unscaledLayout(*findPixelFormat(pixelFormat));
    samples.width = width;
    samples.height = height;
    return samples.size();
}

std::string pixelFormatName(std::uint32_t pixelFormat)
{
    if (const PixelFormat *const format = findPixelFormat(pixelFormat))
        return format->name;
    std::array<char, 11> code{};
    std::snprintf(code.data(), code.size(), "0x%08X", pixelFormat);
    return code.data();
}
