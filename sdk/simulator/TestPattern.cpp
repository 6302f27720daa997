#include "sdk/simulator/TestPattern.h"

#include "sdk/simulator/SceneFont.h"

#include <algorithm>
#include <array>
#include <string>

namespace {
/// Returns the value of a ramp that rises over `length` pixels from 0 to nearly the maximum.
std::uint16_t rampValue(std::int64_t position, int length, int maxValue)
{
    return static_cast<std::uint16_t>(position % length * (maxValue + 1) / length);
}

/// Returns the color bar's value, which is 0 or 1, in one channel (red, green, blue). The bars are white,
/// yellow, cyan, green, magenta, red, blue and black.
int barChannel(int x, int width, int channel)
{
    const int bar = 7 - x * 8 / width; // Bit 2 is green, bit 1 red, bit 0 blue.
    constexpr std::array<int, 3> bitOfChannel{1, 2, 0};
    return bar >> bitOfChannel.at(static_cast<std::size_t>(channel)) & 1;
}

int bayerChannel(int x, int y)
{
    return (x & 1) + (y & 1);
}

std::uint16_t colorBarValue(const PackedFormat &format, PictureSize size, int x, int y, int component)
{
    switch (format.colors) {
    case PackedFormat::Colors::Mono: // The eighth bar is black, the first one is white.
        return static_cast<std::uint16_t>((7 - x * 8 / size.width) * format.maxValue() / 7);
    case PackedFormat::Colors::Bayer:
        return static_cast<std::uint16_t>(barChannel(x, size.width, bayerChannel(x, y)) * format.maxValue());
    case PackedFormat::Colors::Rgb:
        return static_cast<std::uint16_t>(barChannel(x, size.width, component) * format.maxValue());
    }
    return 0;
}
} // namespace

bool changesVertically(TestPattern pattern)
{
    return pattern == TestPattern::GreyVerticalRamp || pattern == TestPattern::GreyVerticalRampMoving;
}

void testPatternLine(const RenderSettings &settings, const PackedFormat &format, PictureSize size, int y,
    std::uint16_t *values)
{
    const int maxValue = format.maxValue();
    const int components = format.colors == PackedFormat::Colors::Rgb ? 3 : 1;
    const auto step = static_cast<std::int64_t>(settings.frameNumber % 0x7FFFFFFF);
    for (int x = settings.offsetX; x < settings.offsetX + settings.width; ++x) {
        for (int component = 0; component < components; ++component, ++values) {
            switch (settings.testPattern) {
            case TestPattern::White:
                *values = static_cast<std::uint16_t>(maxValue);
                break;
            case TestPattern::GreyHorizontalRamp:
                *values = rampValue(x, size.width, maxValue);
                break;
            case TestPattern::GreyVerticalRamp:
                *values = rampValue(y, size.height, maxValue);
                break;
            case TestPattern::GreyHorizontalRampMoving:
                *values = rampValue(x + step, size.width, maxValue);
                break;
            case TestPattern::GreyVerticalRampMoving:
                *values = rampValue(y + step, size.height, maxValue);
                break;
            case TestPattern::ColorBar:
                *values = colorBarValue(format, size, x, y, component);
                break;
            default:
                *values = 0;
            }
        }
    }
}

void addFrameCounter(const RenderSettings &settings, const PackedFormat &format, int y, std::uint16_t *values)
{
    constexpr int dot = 4; // Pixels.
    constexpr int border = dot;
    const std::string digits = std::to_string(settings.frameNumber);
    const int row = (y - border) / dot;
    if (y < border || row >= SceneFont::glyphHeight)
        return;
    const int components = format.colors == PackedFormat::Colors::Rgb ? 3 : 1;
    const int width
        = std::min(static_cast<int>(digits.size()) * SceneFont::advance * dot, settings.width - border);
    for (int x = 0; x < width; ++x) {
        const int column = x / dot % SceneFont::advance;
        const char digit = digits[static_cast<std::size_t>(x / dot / SceneFont::advance)];
        const bool isWhite = column < SceneFont::glyphWidth && SceneFont::hasDot(digit, column, row);
        const auto value = static_cast<std::uint16_t>(isWhite ? format.maxValue() : 0);
        std::fill_n(values + (border + x) * components, components, value);
    }
}
