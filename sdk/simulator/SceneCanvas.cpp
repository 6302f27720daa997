#include "sdk/simulator/SceneCanvas.h"

#include "sdk/simulator/SceneBlur.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double maxBlur = 32; // Pixels; everything is unrecognisable then.
constexpr SceneChart::LineFilter monochrome{{{0.3F, 0.59F, 0.11F}, {0.3F, 0.59F, 0.11F}}};

int sceneHeight(const SensorModel &model)
{
    return model.isLineScan ? SceneCanvas::lineScanPeriod(model) : model.height;
}

/// Converts reflectances into what SceneCanvas::line() returns.
void storeRoots(const float *reflectance, int count, std::uint8_t *pixels)
{
    for (int i = 0; i < count; ++i)
        pixels[i] = static_cast<std::uint8_t>(
            static_cast<int>(std::sqrt(reflectance[i]) * SceneCanvas::fullScale + 0.5F));
}
} // namespace

bool SceneArea::contains(const SceneArea &other) const
{
    return other.left >= left && other.top >= top && other.left + other.width <= left + width
        && other.top + other.height <= top + height;
}

bool SceneCanvas::View::operator==(const View &other) const
{
    return focusPosition == other.focusPosition && mosaicX == other.mosaicX && mosaicY == other.mosaicY;
}

int SceneCanvas::margin(const SensorModel &model)
{
    if (model.isLineScan)
        return 0;
    return std::min({64, model.width / 16 * 2, model.height / 16 * 2});
}

int SceneCanvas::lineScanPeriod(const SensorModel &model)
{
    return std::min(model.width * 3 / 4, 2048);
}

SceneCanvas::SceneCanvas(const SensorModel &model, const SensorFlaws &flaws)
    : m_model(model),
      m_flaws(flaws),
      m_chart(model.width, sceneHeight(model), margin(model) + static_cast<int>(maxBlur) + 4, model.seed)
{ }

SceneChart::LineFilter SceneCanvas::filterOfLine(const View &view, int y) const
{
    if (!m_model.isColor)
        return monochrome;
    SceneChart::LineFilter filter{};
    const int row = (y + view.mosaicY) & 1;
    for (int column = 0; column < 2; ++column) {
        const int channel = row + ((column + view.mosaicX) & 1); // Red, green; green, blue.
        filter.at(static_cast<std::size_t>(column)).at(static_cast<std::size_t>(channel)) = 1;
    }
    return filter;
}

void SceneCanvas::prepare(const View &view, const SceneArea &area)
{
    if (m_view == view && m_area.contains(area))
        return;
    m_view = view;
    m_area = area;
    m_pixels.resize(static_cast<std::size_t>(area.width) * static_cast<std::size_t>(area.height));

    const auto radiusAt = [&](int x, int y) {
        return std::min(
            maxBlur, std::abs(m_flaws.bestFocus(x, y) - view.focusPosition) * m_model.blurPerStep);
    };
    // The radius grows towards the corners.
    const int right = area.left + area.width;
    const int bottom = area.top + area.height;
    const double maxRadius = std::max({radiusAt(area.left, area.top), radiusAt(right, area.top),
        radiusAt(area.left, bottom), radiusAt(right, bottom)});
    const int step = m_model.isColor ? 2 : 1;
    SceneBlur blur(area.width, static_cast<int>(std::ceil(maxRadius / step)), step);
    const int border = blur.border();

    std::vector<float> painted(static_cast<std::size_t>(area.width + 2 * border));
    std::vector<float> blurred(static_cast<std::size_t>(area.width));
    for (int y = area.top - border; y < bottom + border; ++y) {
        const int period = lineScanPeriod(m_model);
        const int sceneY = m_model.isLineScan ? (y + period) % period : y;
        m_chart.paintLine(area.left - border, sceneY, static_cast<int>(painted.size()), filterOfLine(view, y),
            painted.data());
        blur.addLine(painted.data());
        const int centerY = y - border;
        if (centerY < area.top)
            continue;
        for (int x = area.left; x < right;) {
            // Tiles do not depend on the area, or a picture would depend on the ones before.
            const int tile = x & -SceneBlur::tileWidth;
            const int end = std::min(right, tile + SceneBlur::tileWidth);
            const double radius = radiusAt(tile + SceneBlur::tileWidth / 2, centerY);
            blur.blur(x - area.left, end - x, radius, blurred.data() + (x - area.left));
            x = end;
        }
        storeRoots(blurred.data(), area.width,
            m_pixels.data()
                + static_cast<std::size_t>(centerY - area.top) * static_cast<std::size_t>(area.width));
    }
}

const std::uint8_t *SceneCanvas::line(int x, int y) const
{
    return m_pixels.data() + static_cast<std::size_t>(y - m_area.top) * static_cast<std::size_t>(m_area.width)
        + (x - m_area.left);
}
