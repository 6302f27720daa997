#include "tests/image/ReferencePicture.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <sstream>

namespace {

bool isIn(std::string_view text, std::string_view part)
{
    return text.find(part) != std::string_view::npos;
}

unsigned storedBits(std::uint32_t code)
{
    return code >> 16U & 0xFFU;
}

unsigned componentBits(const ReferenceFormat &format)
{
    if (format.storage == "p")
        return static_cast<unsigned>(format.depth);
    if (format.storage == "P")
        return 12;
    if (isIn(format.storage, "w"))
        return 16;
    if (isIn(format.storage, "d") || format.storage == "f")
        return 32;
    if (isIn(format.storage, "q") || format.storage == "F")
        return 64;
    return 8;
}

std::size_t bytesFor(std::size_t bitCount)
{
    return (bitCount + 7) / 8;
}

int floorDivision(int dividend, int divisor)
{
    return static_cast<int>(std::floor(static_cast<double>(dividend) / divisor));
}

} // namespace

ReferencePicture::ReferencePicture(const RawImage &picture, const ReferenceFormat &format)
    : m_picture(picture), m_format(format)
{
    std::istringstream words{std::string(format.layout)};
    for (std::string word; words >> word;) {
        if (word == "planar")
            m_isPlanar = true;
        else if (word == "420" || word == "422")
            m_isSemiplanar = true;
        else
            m_tokens.push_back(
                {word[0], word.size() > 1 && format.kind != PixelKind::Bayer ? word[1] - '0' : -1});
    }
    for (const Token &token : m_tokens)
        m_groupPixels = std::max(m_groupPixels, token.pixel + 1);
    m_isTight = picture.size != paddedSize(picture, format) && picture.size == tightSize(picture);
    if (format.storage != "f" && format.storage != "F")
        return;
    m_lowest.fill(std::numeric_limits<double>::infinity());
    m_highest.fill(-std::numeric_limits<double>::infinity());
    const std::size_t channels = m_tokens.size();
    for (int y = 0; y < static_cast<int>(picture.height); ++y) {
        for (std::size_t i = 0; i < picture.width * channels; ++i) {
            const std::size_t channel = i % channels;
            const auto plane = static_cast<unsigned>(m_isPlanar ? channel : 0);
            const std::size_t index = m_isPlanar ? i / channels : i;
            const double value = number(component(plane, y, index));
            if (!isPresent(plane, y, index) || !std::isfinite(value))
                continue;
            m_lowest[channel] = std::min(m_lowest[channel], value);
            m_highest[channel] = std::max(m_highest[channel], value);
        }
    }
}

std::size_t ReferencePicture::paddedSize(const RawImage &picture, const ReferenceFormat &format)
{
    const std::size_t width = picture.width;
    const std::size_t height = picture.height;
    const std::size_t padding = picture.paddingX;
    if (isIn(format.layout, "planar"))
        return 3 * height * (bytesFor(width * componentBits(format)) + padding);
    if (isIn(format.layout, "420"))
        return height * (width + padding) + (height + 1) / 2 * ((width + 1) / 2 * 2 + padding);
    if (isIn(format.layout, "422 "))
        return height * (width + padding) + height * ((width + 1) / 2 * 2 + padding);
    return height * (bytesFor(width * storedBits(format.code)) + padding);
}

std::size_t ReferencePicture::tightSize(const RawImage &picture)
{
    return bytesFor(std::size_t(picture.width) * picture.height * storedBits(picture.pixelFormat));
}

unsigned ReferencePicture::rawChannels() const
{
    if (m_format.kind == PixelKind::BiColor)
        return 2;
    if (m_format.kind == PixelKind::Yuv)
        return 3;
    return m_format.kind == PixelKind::Bayer ? 1 : static_cast<unsigned>(m_tokens.size());
}

bool ReferencePicture::isGrey() const
{
    return m_format.kind == PixelKind::Mono || m_format.kind == PixelKind::Depth
        || m_format.kind == PixelKind::Raw;
}

char ReferencePicture::bayerColor(int x, int y) const
{
    const std::string_view first = m_format.layout;
    const auto column = static_cast<std::size_t>(x & 1);
    if ((y & 1) == 0)
        return first[column];
    // Below green is the colour that the first line lacks, and below the other colour is green.
    if (first[column] != 'G')
        return 'G';
    return isIn(first, "R") ? 'B' : 'R';
}

/// Returns bits of the stream, the lowest bit of a byte first. Missing bits are 0.
std::uint64_t ReferencePicture::bits(std::uint64_t firstBit, unsigned count) const
{
    std::uint64_t value = 0;
    for (unsigned i = 0; i < count; ++i) {
        const std::uint64_t bit = firstBit + i;
        const unsigned byte = bit / 8 < m_picture.size ? m_picture.data[bit / 8] : 0;
        value |= std::uint64_t(byte >> (bit % 8) & 1U) << i;
    }
    return value;
}

std::uint64_t ReferencePicture::integer(std::size_t offset, unsigned bytes) const
{
    std::uint64_t value = 0;
    for (unsigned i = 0; i < bytes; ++i) {
        const std::uint64_t byte = bits(8 * (offset + i), 8);
        value = m_picture.isBigEndian ? value << 8U | byte : value | byte << (8 * i);
    }
    return value;
}

std::size_t ReferencePicture::lineOffset(unsigned plane, int line) const
{
    const auto y = static_cast<std::size_t>(line);
    const std::size_t padding = m_isTight ? 0 : m_picture.paddingX;
    if (m_isPlanar)
        return (plane * m_picture.height + y)
            * (bytesFor(m_picture.width * componentBits(m_format)) + padding);
    if (m_isSemiplanar && plane == 1)
        return m_picture.height * (m_picture.width + padding)
            + (isIn(m_format.layout, "420") ? y / 2 : y) * ((m_picture.width + 1U) / 2 * 2 + padding);
    if (m_isSemiplanar)
        return y * (m_picture.width + padding);
    return y * (bytesFor(m_picture.width * storedBits(m_picture.pixelFormat)) + padding);
}

/// Returns true if lines need not start at whole bytes.
bool ReferencePicture::isStream() const
{
    return m_format.storage == "p" || m_format.storage == "P";
}

std::size_t ReferencePicture::lineComponents() const
{
    const std::size_t lineBits = m_picture.width * storedBits(m_picture.pixelFormat);
    return (m_isTight && isStream() ? lineBits : 8 * bytesFor(lineBits)) / componentBits(m_format);
}

std::uint64_t ReferencePicture::component(unsigned plane, int y, std::size_t index) const
{
    const std::string_view storage = m_format.storage;
    std::size_t offset = lineOffset(plane, y);
    if (isStream() && m_isTight) {
        offset = 0;
        index += static_cast<std::size_t>(y) * lineComponents();
    }
    if (storage == "p")
        return bits(8 * offset + index * static_cast<unsigned>(m_format.depth),
            static_cast<unsigned>(m_format.depth));
    if (storage == "P") {
        const unsigned lowBits = static_cast<unsigned>(m_format.depth) - 8;
        const std::uint64_t pair = 8 * (offset + index / 2 * 3);
        const bool isSecond = index % 2 != 0;
        return bits(pair + (isSecond ? 16 : 0), 8) << lowBits | bits(pair + (isSecond ? 12 : 8), lowBits);
    }
    if (storage == "32")
        return integer(offset + index / 3 * 4, 4) >> (index % 3 * 10) & 0x3FFU;
    if (storage == "565") {
        const std::uint64_t word = integer(offset + index / 3 * 2, 2);
        return index % 3 == 0 ? word % 32 : index % 3 == 1 ? word / 32 % 64 : word / 2048;
    }
    if (storage == "raw")
        return bits((8 * offset + index * storedBits(m_picture.pixelFormat)) / 8 * 8, 8);
    const unsigned bytes = componentBits(m_format) / 8;
    const std::uint64_t value = integer(offset + index * bytes, bytes);
    return m_format.depth == 64 ? value : value % (1ULL << static_cast<unsigned>(m_format.depth));
}

bool ReferencePicture::isPresent(unsigned plane, int y, std::size_t index) const
{
    const unsigned bytes = componentBits(m_format) / 8;
    return lineOffset(plane, y) + (index + 1) * bytes <= m_picture.size;
}

/// Returns the place of a letter in the group: that of the pixel itself, or the one that it shares.
std::size_t ReferencePicture::position(char letter, int pixel) const
{
    std::size_t shared = 0;
    for (std::size_t i = 0; i < m_tokens.size(); ++i) {
        if (m_tokens[i].letter == letter && m_tokens[i].pixel == pixel)
            return i;
        if (m_tokens[i].letter == letter)
            shared = i;
    }
    return shared;
}

char ReferencePicture::letterOf(unsigned channel) const
{
    const bool hasColors = m_format.kind == PixelKind::Rgb || m_format.kind == PixelKind::BiColor
        || (m_format.kind == PixelKind::Depth && m_tokens.size() > 1);
    return (hasColors ? "RGBA" : "YUV")[channel];
}

/// Returns the bits of a channel of a pixel.
std::uint64_t ReferencePicture::pattern(int x, int y, unsigned channel) const
{
    if (m_format.kind == PixelKind::Bayer)
        return component(0, y, static_cast<std::size_t>(x));
    if (m_isPlanar)
        return component(channel, y, static_cast<std::size_t>(x));
    if (m_isSemiplanar) {
        const bool isFirst = m_tokens[0].letter == letterOf(channel);
        return channel == 0 ? component(0, y, static_cast<std::size_t>(x))
                            : component(1, y, static_cast<std::size_t>(x / 2 * 2 + (isFirst ? 0 : 1)));
    }
    const std::size_t size = m_tokens.size();
    const std::size_t index
        = static_cast<std::size_t>(x / m_groupPixels) * size + position(letterOf(channel), x % m_groupPixels);
    if (m_groupPixels == 1 || index < lineComponents())
        return component(0, y, index);
    return index >= size ? component(0, y, index - size) : 1ULL << static_cast<unsigned>(m_format.depth - 1);
}

double ReferencePicture::number(std::uint64_t value) const
{
    if (m_format.storage == "f") {
        const auto bits32 = static_cast<std::uint32_t>(value);
        float result = 0;
        std::memcpy(&result, &bits32, sizeof result);
        return result;
    }
    if (m_format.storage == "F") {
        double result = 0;
        std::memcpy(&result, &value, sizeof result);
        return result;
    }
    const auto unused = static_cast<unsigned>(64 - m_format.depth);
    if (m_format.storage[0] == 's')
        return static_cast<double>(static_cast<std::int64_t>(value << unused) >> unused);
    return static_cast<double>(value);
}

double ReferencePicture::raw(int x, int y, unsigned channel) const
{
    if (m_format.kind == PixelKind::BiColor)
        return number(component(0, y, static_cast<std::size_t>(2 * x) + channel));
    return number(pattern(x, y, channel));
}

/// Returns a floating-point number as its part of the range of the picture.
double ReferencePicture::share(int x, int y, unsigned channel) const
{
    const double value = raw(x, y, channel);
    const double low = m_lowest[channel];
    const double high = m_highest[channel];
    if (std::isnan(value) || low >= high)
        return 0;
    return std::clamp((value / 2 - low / 2) / (high / 2 - low / 2), 0.0, 1.0);
}

unsigned ReferencePicture::word(int x, int y, unsigned channel) const
{
    if (m_format.storage == "f" || m_format.storage == "F")
        return static_cast<unsigned>(std::floor(share(x, y, channel) * 65535 + 0.5));
    if (m_format.depth > 16)
        return static_cast<unsigned>(pattern(x, y, channel) >> static_cast<unsigned>(m_format.depth - 16));
    return static_cast<std::uint16_t>(static_cast<int>(raw(x, y, channel)));
}

unsigned ReferencePicture::screenByte(int x, int y, unsigned channel) const
{
    const auto depth = static_cast<unsigned>(m_format.depth);
    if (m_format.storage == "f" || m_format.storage == "F")
        return word(x, y, channel) / 256;
    std::uint64_t value = pattern(x, y, channel);
    if (m_format.storage == "565")
        return static_cast<unsigned>(channel == 1 ? value * 4 + value / 16 : value * 8 + value / 4);
    if (m_format.storage[0] == 's')
        value ^= 1ULL << (depth - 1);
    if (depth < 8)
        return static_cast<unsigned>(value * 255 / ((1U << depth) - 1));
    return static_cast<unsigned>(value >> (depth - 8));
}

ReferencePicture::Color ReferencePicture::screen(int x, int y, Demosaicing demosaicing) const
{
    if (m_format.kind == PixelKind::Bayer)
        return demosaic(x, y, demosaicing, 255,
            [this](int column, int line) { return static_cast<int>(screenByte(column, line, 0)); });
    if (isGrey())
        return {double(screenByte(x, y, 0))};
    const Color color
        = {double(screenByte(x, y, 0)), double(screenByte(x, y, 1)), double(screenByte(x, y, 2))};
    return m_format.kind == PixelKind::Yuv ? fromYuv(color[0], color[1], color[2], 8) : color;
}

ReferencePicture::Color ReferencePicture::colorWord(int x, int y, Demosaicing demosaicing) const
{
    const int depth = std::min(m_format.depth, 16);
    if (m_format.kind == PixelKind::Bayer)
        return demosaic(x, y, demosaicing, (1 << depth) - 1,
            [this](int column, int line) { return static_cast<int>(word(column, line, 0)); });
    if (isGrey()) {
        const unsigned sign = m_format.storage[0] == 's' ? 1U << static_cast<unsigned>(depth - 1) : 0;
        const double grey = (word(x, y, 0) ^ sign) & ((1U << static_cast<unsigned>(depth)) - 1);
        return {grey, grey, grey};
    }
    Color color{};
    for (unsigned channel = 0; channel < 3; ++channel)
        color[channel] = static_cast<double>(pattern(x, y, channel));
    if (m_format.storage == "565")
        return {color[0] * 2 + std::floor(color[0] / 16), color[1], color[2] * 2 + std::floor(color[2] / 16)};
    return m_format.kind == PixelKind::Yuv ? fromYuv(color[0], color[1], color[2], depth) : color;
}

ReferencePicture::Color ReferencePicture::fromYuv(double y, double u, double v, int depth) const
{
    const double maximum = std::pow(2, depth) - 1;
    const double kr = m_format.standard == "709" ? 0.2126 : m_format.standard == "2020" ? 0.2627 : 0.299;
    const double kb = m_format.standard == "709" ? 0.0722 : m_format.standard == "2020" ? 0.0593 : 0.114;
    u -= std::pow(2, depth - 1);
    v -= std::pow(2, depth - 1);
    if (!m_format.standard.empty()) {
        y = (y - 16) * 255 / 219;
        u = u * 255 / 224;
        v = v * 255 / 224;
    }
    const double red = y + 2 * (1 - kr) * v;
    const double blue = y + 2 * (1 - kb) * u;
    const double green = (y - kr * red - kb * blue) / (1 - kr - kb); // Because luma is the sum of the shares.
    return {std::clamp(red, 0.0, maximum), std::clamp(green, 0.0, maximum), std::clamp(blue, 0.0, maximum)};
}

int ReferencePicture::mirrored(int index, int count)
{
    if (count == 1)
        return 0;
    while (index < 0 || index >= count)
        index = index < 0 ? -index : 2 * (count - 1) - index;
    return index;
}

ReferencePicture::Color ReferencePicture::demosaic(
    int x, int y, Demosaicing demosaicing, int maximum, const Value &value) const
{
    const Value anywhere = [&](int column, int line) {
        return value(mirrored(column, static_cast<int>(m_picture.width)),
            mirrored(line, static_cast<int>(m_picture.height)));
    };
    Color color{};
    for (std::size_t channel = 0; channel < 3; ++channel)
        color[channel] = demosaicing == Demosaicing::Bilinear
            ? bilinear(x, y, "RGB"[channel], anywhere)
            : edgeAware(x, y, "RGB"[channel], maximum, anywhere);
    return color;
}

int ReferencePicture::bilinear(int x, int y, char color, const Value &value) const
{
    if (bayerColor(x, y) == color)
        return value(x, y);
    int sum = 0;
    int count = 0;
    for (int line = y - 1; line <= y + 1; ++line) {
        for (int column = x - 1; column <= x + 1; ++column) {
            if (bayerColor(column, line) == color) {
                sum += value(column, line);
                ++count;
            }
        }
    }
    return (sum + count / 2) / count;
}

int ReferencePicture::green(int x, int y, int maximum, const Value &value) const
{
    if (bayerColor(x, y) == 'G')
        return value(x, y);
    const int center = 2 * value(x, y);
    const int bendX = center - value(x - 2, y) - value(x + 2, y);
    const int bendY = center - value(x, y - 2) - value(x, y + 2);
    const int variationX = std::abs(value(x - 1, y) - value(x + 1, y)) + std::abs(bendX);
    const int variationY = std::abs(value(x, y - 1) - value(x, y + 1)) + std::abs(bendY);
    const int fourX = 2 * (value(x - 1, y) + value(x + 1, y)) + bendX;
    const int fourY = 2 * (value(x, y - 1) + value(x, y + 1)) + bendY;
    if (variationX < variationY)
        return std::clamp(floorDivision(fourX + 2, 4), 0, maximum);
    if (variationY < variationX)
        return std::clamp(floorDivision(fourY + 2, 4), 0, maximum);
    return std::clamp(floorDivision(fourX + fourY + 4, 8), 0, maximum);
}

int ReferencePicture::edgeAware(int x, int y, char color, int maximum, const Value &value) const
{
    const int here = green(x, y, maximum, value);
    if (color == 'G')
        return here;
    if (bayerColor(x, y) == color)
        return value(x, y);
    const auto difference
        = [&](int dx, int dy) { return value(x + dx, y + dy) - green(x + dx, y + dy, maximum, value); };
    const auto variation = [&](int dx, int dy) {
        return std::abs(value(x + dx, y + dy) - value(x - dx, y - dy))
            + std::abs(
                2 * here - green(x + dx, y + dy, maximum, value) - green(x - dx, y - dy, maximum, value));
    };
    int mean = 0;
    if (bayerColor(x, y) == 'G') {
        const int dx = bayerColor(x + 1, y) == color ? 1 : 0;
        mean = floorDivision(difference(dx, 1 - dx) + difference(-dx, dx - 1) + 1, 2);
    } else {
        const int falling = difference(-1, -1) + difference(1, 1);
        const int rising = difference(1, -1) + difference(-1, 1);
        if (variation(1, 1) < variation(1, -1))
            mean = floorDivision(falling + 1, 2);
        else if (variation(1, -1) < variation(1, 1))
            mean = floorDivision(rising + 1, 2);
        else
            mean = floorDivision(falling + rising + 2, 4);
    }
    return std::clamp(here + mean, 0, maximum);
}
