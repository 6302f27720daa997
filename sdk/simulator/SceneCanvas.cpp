#include "sdk/simulator/SceneCanvas.h"

#include "sdk/simulator/SceneBlur.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double maxBlur = 32; // Pixels; everything is unrecognisable then.
int sceneHeight(const SensorModel &model)
{
    return model.isLineScan ? SceneCanvas::lineScanPeriod(model) : model.height;
}

/// Converts reflectances into what SceneCanvas::line() returns.
void storeRoots(const float *reflectance, int count, std::uint8_t *pixels)
{
    for (int i = 0; i < count; ++i)
        pixels[i] = static_cast<std::uint8_t>(
            static_cast<int>(std::sqrt(std::max(reflectance[i], 0.0F)) * SceneCanvas::fullScale + 0.5F));
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

SceneCanvas::Layer::Layer(const SceneArea &area, double maxRadius, int step)
    : blur(area.width, static_cast<int>(std::ceil(maxRadius / step)), step),
      left(area.left - blur.border()),
      nextLine(area.top - blur.border()),
      painted(static_cast<std::size_t>(area.width + 2 * blur.border()))
{ }

SceneChart::LineFilter SceneCanvas::tintFilter(const View &view, int y) const
{
    SceneChart::LineFilter filter{SceneChart::brightnessWeights, SceneChart::brightnessWeights};
    for (std::size_t column = 0; column < 2; ++column) {
        for (float &weight : filter[column])
            weight = -weight;
        const int channel = ((y + view.mosaicY) & 1) + ((static_cast<int>(column) + view.mosaicX) & 1);
        filter[column].at(static_cast<std::size_t>(channel))
            += 1; // Lines have red and green, or green and blue.
    }
    return filter;
}

void SceneCanvas::paintUntil(Layer &layer, int lastLine, bool isTint)
{
    const int period = lineScanPeriod(m_model);
    for (; layer.nextLine <= lastLine; ++layer.nextLine) {
        const int y = layer.nextLine;
        const int sceneY = m_model.isLineScan ? (y + period) % period : y;
        const int count = static_cast<int>(layer.painted.size());
        if (isTint)
            m_chart.paintTint(layer.left, sceneY, count, tintFilter(*m_view, y), layer.painted.data());
        else
            m_chart.paintBrightness(layer.left, sceneY, count, layer.painted.data());
        layer.blur.addLine(layer.painted.data());
    }
}

double SceneCanvas::blurRadius(int x, int y) const
{
    const double distance = std::abs(m_flaws.bestFocus(x, y) - m_view->focusPosition);
    return std::min(maxBlur, distance * m_model.blurPerStep);
}

void SceneCanvas::blurLine(const Layer &layer, int y, float *values) const
{
    const int right = m_area.left + m_area.width;
    for (int x = m_area.left; x < right;) {
        // Tiles do not depend on the area, or a picture would depend on the ones before.
        const int tile = x & -SceneBlur::tileWidth;
        const int end = std::min(right, tile + SceneBlur::tileWidth);
        const double radius = blurRadius(tile + SceneBlur::tileWidth / 2, y);
        layer.blur.addBlurred(x - m_area.left, end - x, radius, values + (x - m_area.left));
        x = end;
    }
}

void SceneCanvas::prepare(const View &view, const SceneArea &area)
{
    if (m_view == view && m_area.contains(area))
        return;
    m_view = view;
    m_area = area;
    m_pixels.resize(static_cast<std::size_t>(area.width) * static_cast<std::size_t>(area.height));

    // The radius grows towards the corners. Tiles may extend beyond the area.
    const int left = area.left - SceneBlur::tileWidth;
    const int right = area.left + area.width + SceneBlur::tileWidth;
    const int bottom = area.top + area.height;
    const double maxRadius = std::max({blurRadius(left, area.top), blurRadius(right, area.top),
        blurRadius(left, bottom), blurRadius(right, bottom)});

    // The lens blurs the picture before the colour filters divide it. Most of the chart is grey, so it is
    // sufficient to blur the brightness of all pixels, and the differences from it among pixels of one
    // colour.
    Layer brightnessLayer(area, maxRadius, 1);
    std::optional<Layer> tintLayer;
    if (m_model.isColor)
        tintLayer.emplace(area, maxRadius, 2);
    std::vector<float> reflectance(static_cast<std::size_t>(area.width));
    for (int y = area.top; y < bottom; ++y) {
        std::fill(reflectance.begin(), reflectance.end(), 0.0F);
        paintUntil(brightnessLayer, y + brightnessLayer.blur.border(), false);
        blurLine(brightnessLayer, y, reflectance.data());
        if (tintLayer) {
            paintUntil(*tintLayer, y + tintLayer->blur.border(), true);
            blurLine(*tintLayer, y, reflectance.data());
        }
        storeRoots(reflectance.data(), area.width,
            m_pixels.data() + static_cast<std::size_t>(y - area.top) * static_cast<std::size_t>(area.width));
    }
}

const std::uint8_t *SceneCanvas::line(int x, int y) const
{
    return m_pixels.data() + static_cast<std::size_t>(y - m_area.top) * static_cast<std::size_t>(m_area.width)
        + (x - m_area.left);
}
