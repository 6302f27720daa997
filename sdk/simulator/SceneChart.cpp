#include "sdk/simulator/SceneChart.h"

#include "sdk/simulator/ProcessorVersions.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr Reflectance table{0.16F, 0.125F, 0.10F};
constexpr Reflectance paper = Reflectance::grey(0.79F);
constexpr Reflectance graphLines{0.62F, 0.70F, 0.72F};
constexpr Reflectance chartInk = Reflectance::grey(0.045F);
constexpr float grain = 0.025F; // Standard deviation of the surface's brightness, relative.
constexpr float cardAspect = 1.25F;

/// Returns the share of a filter's light that the surface reflects.
float reflected(const Reflectance &surface, const std::array<float, 3> &weights)
{
    return surface.red * weights[0] + surface.green * weights[1] + surface.blue * weights[2];
}

/// Returns the share for column `x` and the next one, and so on alternately.
std::array<float, 2> colorsFrom(int x, const Reflectance &surface, const SceneChart::LineFilter &filter)
{
    const std::size_t parity = x & 1;
    return {reflected(surface, filter[parity]), reflected(surface, filter[1 - parity])};
}

/// Mixes pixels with the colours of even and odd columns, as far as they are covered.
CORVIX_PROCESSOR_VERSIONS
void blend(
    const std::array<float, 2> &colors, const float *__restrict coverage, int count, float *__restrict pixels)
{
    const auto [even, odd] = colors;
    if (even == odd) { // The usual case is the fastest one.
        for (int i = 0; i < count; ++i)
            pixels[i] += (even - pixels[i]) * coverage[i];
        return;
    }
    for (int i = 0; i < count; ++i)
        pixels[i] += ((i % 2 == 0 ? even : odd) - pixels[i]) * coverage[i];
}

/// Returns a printed colour; the hue is given in sixths of the circle, 0 red, 2 green, 4 blue.
Reflectance printedColor(float hue, float saturation, float value)
{
    const auto channel = [&](float center) {
        const float distance = std::abs(std::remainder(hue - center, 6.0F));
        return value * (1 - saturation * std::clamp(distance - 1, 0.0F, 1.0F));
    };
    return {channel(0), channel(2), channel(4)};
}
} // namespace

SceneChart::SceneChart(int width, int height, int margin, std::uint64_t seed)
    : m_seed(scrambled(seed)), m_margin(margin), m_grain(m_seed, 1, grain, width + 2 * margin)
{
    const int cards = std::max(1,
        static_cast<int>(std::lround(static_cast<float>(width) / (static_cast<float>(height) * cardAspect))));
    const float pitch = static_cast<float>(width) / static_cast<float>(cards);
    for (int i = 0; i < cards; ++i)
        addCard({pitch * static_cast<float>(i), pitch}, static_cast<float>(height));
}

void SceneChart::addCard(Card card, float height)
{
    const float unit = std::min(height, card.width / 1.15F) / 100; // All lengths are multiples of it.
    const float top = (height - 100 * unit) / 2;
    const float middle = card.left + card.width / 2;
    const float left = card.left + 4 * unit;
    const float width = card.width - 8 * unit;
    addTinted(box(left, top + 4 * unit, width, 92 * unit, paper));
    addGraphPaper(m_shapes.back(), std::max(2 * unit, 12.0F));
    add(box(left + unit, top + 5 * unit, width - 2 * unit, 0.4F * unit, chartInk));
    add(box(left + unit, top + 94.6F * unit, width - 2 * unit, 0.4F * unit, chartInk));

    addTinted(disc(middle, top + 50 * unit, 28.5F * unit, paper));
    add(ring(middle, top + 50 * unit, 28.5F * unit, 0.5F * unit, chartInk));
    add(star(middle, top + 50 * unit, 26 * unit, 36, chartInk));
    for (const float x : {left + 12 * unit, left + width - 12 * unit}) {
        for (const float y : {top + 17 * unit, top + 83 * unit}) {
            addTinted(disc(x, y, 9.5F * unit, paper));
            add(ring(x, y, 9.5F * unit, 0.4F * unit, chartInk));
            add(star(x, y, 8.5F * unit, 18, chartInk));
        }
    }

    addGreyWedge(middle - 28 * unit, top + 8 * unit, 56 * unit, 7 * unit);
    add(textLine(middle - 25.5F * unit, top + 16.4F * unit, 3.8F * unit, "CORVIX SIMULATOR", chartInk));
    addGratings(middle - 28 * unit, top + 85 * unit, 56 * unit, 7.5F * unit);
    add(textLine(middle - 28 * unit, top + 80 * unit, 2.6F * unit, "0123456789 ABCDEFGHIJ", chartInk));
    add(textLine(middle + 20.3F * unit, top + 81.4F * unit, 0.56F * unit, "KLMNOPQRSTUVWXYZ", chartInk));

    const float columnWidth = 18 * unit;
    const float rightColumn = left + width - 3 * unit - columnWidth;
    addBarGroups(left + 3 * unit, top + 29 * unit, columnWidth, 24 * unit);
    add(slantedSquare(left + 6 * unit, top + 57 * unit, 12 * unit, chartInk));
    addColorPatches(rightColumn, top + 29 * unit, columnWidth, 24 * unit);
    addTinted(disc(rightColumn + columnWidth / 2, top + 63 * unit, 8.2F * unit, paper));
    add(zonePlate(rightColumn + columnWidth / 2, top + 63 * unit, 8 * unit, chartInk));
}

void SceneChart::addGraphPaper(const SceneShape &card, float pitch)
{
    const SceneShape area = card; // The list of shapes moves in memory below.
    const float thickness = std::max(1.0F, pitch / 20);
    for (float x = area.left + pitch; x < area.right() - pitch / 2; x += pitch)
        addTinted(box(x, area.top, thickness, area.height, graphLines));
    for (float y = area.top + pitch; y < area.bottom() - pitch / 2; y += pitch)
        addTinted(box(area.left, y, area.width, thickness, graphLines));
}

void SceneChart::addGreyWedge(float left, float top, float width, float height)
{
    constexpr int steps = 14;
    const float pitch = width / steps;
    for (int i = 0; i < steps; ++i) {
        const float reflectance = 0.9F * std::pow(0.80F, static_cast<float>(i));
        addTinted(
            box(left + pitch * static_cast<float>(i), top, pitch, height, Reflectance::grey(reflectance)));
    }
}

void SceneChart::addColorPatches(float left, float top, float width, float height)
{
    constexpr int columns = 4;
    constexpr int rows = 6;
    addTinted(box(left, top, width, height, chartInk));
    const float pitchX = width / columns;
    const float pitchY = height / rows;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const float hue = static_cast<float>(row * columns + column) * 0.25F;
            const float saturation = column % 2 == 0 ? 0.85F : 0.55F;
            addTinted(box(left + pitchX * (static_cast<float>(column) + 0.06F),
                top + pitchY * (static_cast<float>(row) + 0.06F), pitchX * 0.88F, pitchY * 0.88F,
                printedColor(hue, saturation, 0.75F)));
        }
    }
}

void SceneChart::addBarGroups(float left, float top, float width, float height)
{
    // Groups of three vertical and three horizontal bars, each smaller than the one above.
    addTinted(box(left, top, width, height, paper));
    float y = top + height * 0.03F;
    for (float size = width * 0.4F; size >= 4 && y + size <= top + height; size *= 0.72F) {
        const float period = size / 2.5F;
        add(verticalBars(left + width * 0.03F, y, size, size, period, chartInk));
        add(horizontalBars(left + width * 0.53F, y, size, size, period, chartInk));
        y += size * 1.15F;
    }
}

void SceneChart::addGratings(float left, float top, float width, float height)
{
    constexpr std::array<float, 8> periods{24, 16, 12, 8, 6, 5, 4, 3}; // Pixels.
    const float pitch = width / static_cast<float>(periods.size());
    addTinted(box(left, top, width, height, paper));
    for (std::size_t i = 0; i < periods.size(); ++i) {
        // Bars of even periods are aligned to the pixels, or the finest ones would be grey.
        const float x = std::floor(left + pitch * static_cast<float>(i)) - 0.5F;
        add(verticalBars(x, top, pitch * 0.9F, height, periods[i], chartInk));
    }
}

void SceneChart::add(const SceneShape &shape)
{
    m_shapes.push_back(shape);
}

void SceneChart::addTinted(const SceneShape &shape)
{
    m_shapes.push_back(shape);
    m_tintedShapes.push_back(shape);
}

void SceneChart::paintBrightness(int x, int y, int count, float *brightness)
{
    paint(m_shapes, x, y, count, {brightnessWeights, brightnessWeights}, brightness);
    const float *grains = m_grain.line(scrambled(m_seed + static_cast<std::uint64_t>(y))) + m_margin + x;
    for (int i = 0; i < count; ++i)
        brightness[i] *= grains[i];
}

void SceneChart::paintTint(int x, int y, int count, const LineFilter &filter, float *tint)
{
    paint(m_tintedShapes, x, y, count, filter, tint);
}

void SceneChart::paint(
    const Shapes &shapes, int x, int y, int count, const LineFilter &filter, float *reflectance)
{
    m_coverage.resize(static_cast<std::size_t>(count));
    std::fill_n(m_coverage.begin(), count, 1.0F);
    std::fill_n(reflectance, count, 0.0F);
    blend(colorsFrom(x, table, filter), m_coverage.data(), count, reflectance);
    for (const SceneShape &shape : shapes)
        if (static_cast<float>(y) > shape.top - 1 && static_cast<float>(y) < shape.bottom())
            paintShape(shape, x, y, count, filter, reflectance);
}

void SceneChart::paintShape(
    const SceneShape &shape, int x, int y, int count, const LineFilter &filter, float *reflectance)
{
    const int first = std::max(0, static_cast<int>(std::floor(shape.left)) - x);
    const int end = std::min(count, static_cast<int>(std::ceil(shape.right())) + 1 - x);
    if (first >= end)
        return;
    shape.coverage(
        shape, static_cast<float>(y), static_cast<float>(x + first), end - first, m_coverage.data());
    blend(colorsFrom(x + first, shape.ink, filter), m_coverage.data(), end - first, reflectance + first);
}
