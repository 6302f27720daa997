#include "sdk/simulator/SceneShape.h"

#include "sdk/simulator/ProcessorVersions.h"
#include "sdk/simulator/SceneFont.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr float pi = 3.14159265F;

CORVIX_PROCESSOR_INLINE float clampedToShare(float value)
{
    return std::min(std::max(value, 0.0F), 1.0F); // Unlike std::clamp(), without branches.
}

/// Returns an angle from 0 to 2 pi with an error below 0.001. Unlike std::atan2(), the compiler can compute
/// several of them at once.
CORVIX_PROCESSOR_INLINE float approximateAngle(float x, float y)
{
    const float absoluteX = std::abs(x) + 1e-6F;
    const float absoluteY = std::abs(y);
    const float ratio = std::min(absoluteX, absoluteY) / std::max(absoluteX, absoluteY);
    const float square = ratio * ratio;
    const float arc
        = ((-0.0464964749F * square + 0.15931422F) * square - 0.327622764F) * square * ratio + ratio;
    const float octant = absoluteY > absoluteX ? pi / 2 - arc : arc;
    const float half = pi / 2 + std::copysign(pi / 2 - octant, -x);
    return pi + std::copysign(pi - half, -y);
}

/// Returns the distance from the nearest integer, 0 to 0.5. The value must be greater than -1.
CORVIX_PROCESSOR_INLINE float distanceFromInteger(float value)
{
    return std::abs(value - static_cast<float>(static_cast<int>(value + 0.5F)));
}

// The functions copy everything that they need from the shape, because the coverage could overlap with the
// shape as far as the compiler knows. Then it can compute several pixels at once.

CORVIX_PROCESSOR_VERSIONS
void coverBox(const SceneShape &shape, float y, float x, int count, float *coverage)
{
    const float vertical = clampedToShare(y - shape.top + 1) * clampedToShare(shape.bottom() - y);
    const float left = shape.left;
    const float right = shape.right();
    for (int i = 0; i < count; ++i) {
        const float column = x + static_cast<float>(i);
        coverage[i] = vertical * clampedToShare(column - left + 1) * clampedToShare(right - column);
    }
}

CORVIX_PROCESSOR_VERSIONS
void coverRing(const SceneShape &shape, float y, float x, int count, float *coverage)
{
    const float radius = shape.width / 2;
    const float innerRadius = radius - shape.parameter;
    const float down = y - shape.centerY();
    const float centerX = shape.centerX();
    for (int i = 0; i < count; ++i) {
        const float right = x + static_cast<float>(i) - centerX;
        const float distance = std::sqrt(right * right + down * down);
        coverage[i]
            = clampedToShare(radius - distance + 0.5F) * clampedToShare(distance - innerRadius + 0.5F);
    }
}

CORVIX_PROCESSOR_VERSIONS
void coverStar(const SceneShape &shape, float y, float x, int count, float *coverage)
{
    const float radius = shape.width / 2;
    const float cycles = shape.parameter;
    const float quarterPeriod = pi / 2 / cycles;
    const float down = y - shape.centerY();
    const float centerX = shape.centerX();
    for (int i = 0; i < count; ++i) {
        const float right = x + static_cast<float>(i) - centerX;
        const float distance = std::sqrt(right * right + down * down);
        const float fromDarkCenter = distanceFromInteger(approximateAngle(right, down) * cycles / (2 * pi));
        const float sector = clampedToShare((1 - 4 * fromDarkCenter) * quarterPeriod * distance + 0.5F);
        coverage[i] = sector * clampedToShare(radius - distance + 0.5F);
    }
}

CORVIX_PROCESSOR_VERSIONS
void coverZonePlate(const SceneShape &shape, float y, float x, int count, float *coverage)
{
    const float radius = shape.width / 2;
    const float down = y - shape.centerY();
    const float centerX = shape.centerX();
    for (int i = 0; i < count; ++i) {
        const float right = x + static_cast<float>(i) - centerX;
        const float square = right * right + down * down;
        // The phase grows by half a cycle per two pixels at the border. A triangle wave looks like a sine
        // here.
        const float wave = distanceFromInteger(square / (8 * radius)) * 2;
        coverage[i] = wave * clampedToShare((radius * radius - square) / (2 * radius) + 0.5F);
    }
}

CORVIX_PROCESSOR_VERSIONS
void coverSlantedSquare(const SceneShape &shape, float y, float x, int count, float *coverage)
{
    constexpr float sine = 0.0871557F;
    constexpr float cosine = 0.9961947F;
    const float half = shape.parameter / 2;
    const float down = y - shape.centerY();
    const float centerX = shape.centerX();
    for (int i = 0; i < count; ++i) {
        const float right = x + static_cast<float>(i) - centerX;
        const float across = std::abs(right * cosine + down * sine);
        const float along = std::abs(down * cosine - right * sine);
        coverage[i] = clampedToShare(half - std::max(across, along) + 0.5F);
    }
}

/// Returns how much of a pixel is dark, `position` pixels from the beginning of bars.
CORVIX_PROCESSOR_INLINE float barCoverage(float position, float period)
{
    const float fromDarkCenter = distanceFromInteger(position / period - 0.25F);
    return clampedToShare((0.25F - fromDarkCenter) * period + 0.5F);
}

CORVIX_PROCESSOR_VERSIONS
void coverVerticalBars(const SceneShape &shape, float, float x, int count, float *coverage)
{
    const float left = shape.left;
    const float right = shape.right();
    const float period = shape.parameter;
    for (int i = 0; i < count; ++i) {
        const float column = x + static_cast<float>(i);
        coverage[i] = barCoverage(column - left, period) * clampedToShare(right - column);
    }
}

void coverHorizontalBars(const SceneShape &shape, float y, float, int count, float *coverage)
{
    const float bar = barCoverage(y - shape.top, shape.parameter) * clampedToShare(shape.bottom() - y);
    std::fill_n(coverage, count, bar);
}

void coverText(const SceneShape &shape, float y, float x, int count, float *coverage)
{
    const float dot = shape.parameter;
    const int row = std::clamp(static_cast<int>((y - shape.top) / dot), 0, SceneFont::glyphHeight - 1);
    for (int i = 0; i < count; ++i) {
        const int column = std::max(0, static_cast<int>((x + static_cast<float>(i) - shape.left) / dot));
        const auto letter = static_cast<std::size_t>(column / SceneFont::advance);
        const int letterColumn = column % SceneFont::advance;
        const bool isDark = letterColumn < SceneFont::glyphWidth && letter < shape.text.size()
            && SceneFont::hasDot(shape.text[letter], letterColumn, row);
        coverage[i] = isDark ? 1 : 0;
    }
}

SceneShape round(SceneShape::Coverage coverage, float centerX, float centerY, float radius, Reflectance ink,
    float parameter)
{
    return {coverage, centerX - radius, centerY - radius, 2 * radius, 2 * radius, ink, parameter};
}
} // namespace

SceneShape box(float left, float top, float width, float height, Reflectance ink)
{
    return {coverBox, left, top, width, height, ink};
}

SceneShape disc(float centerX, float centerY, float radius, Reflectance ink)
{
    return round(coverRing, centerX, centerY, radius, ink, 2 * radius);
}

SceneShape ring(float centerX, float centerY, float radius, float thickness, Reflectance ink)
{
    return round(coverRing, centerX, centerY, radius, ink, thickness);
}

SceneShape star(float centerX, float centerY, float radius, float cycles, Reflectance ink)
{
    return round(coverStar, centerX, centerY, radius, ink, cycles);
}

SceneShape zonePlate(float centerX, float centerY, float radius, Reflectance ink)
{
    return round(coverZonePlate, centerX, centerY, radius, ink, 0);
}

SceneShape slantedSquare(float left, float top, float size, Reflectance ink)
{
    constexpr float boundingFactor = 1.09F; // The rotated square is larger by sine plus cosine.
    const float margin = size * (boundingFactor - 1) / 2;
    return {coverSlantedSquare, left - margin, top - margin, size * boundingFactor, size * boundingFactor,
        ink, size};
}

SceneShape verticalBars(float left, float top, float width, float height, float period, Reflectance ink)
{
    return {coverVerticalBars, left, top, width, height, ink, period};
}

SceneShape horizontalBars(float left, float top, float width, float height, float period, Reflectance ink)
{
    return {coverHorizontalBars, left, top, width, height, ink, period};
}

SceneShape textLine(float left, float top, float letterHeight, const std::string &text, Reflectance ink)
{
    const float dot = letterHeight / SceneFont::glyphHeight;
    const float width = dot * SceneFont::advance * static_cast<float>(text.size());
    return {coverText, left, top, width, letterHeight, ink, dot, text};
}
