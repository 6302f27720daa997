#include "sdk/simulator/SceneRenderer.h"

#include "sdk/simulator/SceneDemosaic.h"
#include "sdk/simulator/SceneKernels.h"
#include "sdk/simulator/TestPattern.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double flatFieldReflectance = 0.81; // Its square root is a whole number of SceneCanvas::fullScale.

constexpr int mosaicBorder = 2; // Even, so that lines begin with the same colour.

/// Returns the index of the sensor pixel that is part `part` of a binned pixel. Pixels of a colour mosaic are
/// combined with the next ones of their colour.
int sensorIndex(int pixel, int part, int binning, int step)
{
    return pixel / step * step * binning + pixel % step + part * step;
}

bool isLive(TestPattern pattern)
{
    return pattern == TestPattern::Off || pattern == TestPattern::FrameCounter;
}

/// Returns the nearest line of the same colour inside the picture.
int mirroredLine(int y, int height)
{
    if (y < 0)
        return -y;
    return y < height ? y : 2 * height - 2 - y;
}
} // namespace

std::size_t imageSize(const RenderSettings &settings)
{
    return pixelFormat(settings.pixelFormat).lineSize(settings.width)
        * static_cast<std::size_t>(settings.height);
}

SceneRenderer::SceneRenderer(const SensorModel &model)
    : m_model(model),
      m_step(model.isColor ? 2 : 1),
      m_flaws(model),
      m_canvas(model, m_flaws),
      m_readout(model, m_flaws),
      m_evenScene(static_cast<std::size_t>(model.width),
          static_cast<std::uint8_t>(std::lround(std::sqrt(flatFieldReflectance) * SceneCanvas::fullScale)))
{ }

PictureSize SceneRenderer::pictureSize(const RenderSettings &settings) const
{
    const int width = m_model.width / (m_step * settings.binningX) * m_step;
    if (m_model.isLineScan)
        return {width, settings.height};
    return {width, m_model.height / (m_step * settings.binningY) * m_step};
}

SceneRenderer::Shift SceneRenderer::sceneShift(std::uint64_t frameNumber) const
{
    const int radius = SceneCanvas::margin(m_model);
    if (radius == 0)
        return {0, 0};
    // The scene moves on a figure of eight, by about one pixel from picture to picture.
    const double angle = static_cast<double>(frameNumber) / radius;
    const auto rounded
        = [&](double position) { return static_cast<int>(std::lround(position / m_step)) * m_step; };
    return {rounded(radius * std::sin(angle)), rounded(radius * std::sin(2 * angle) / 2)};
}

void SceneRenderer::render(const RenderSettings &settings, std::uint8_t *buffer)
{
    const PackedFormat &format = pixelFormat(settings.pixelFormat);
    m_size = pictureSize(settings);
    m_quantized.resize(static_cast<std::size_t>(settings.width) * 3);
    if (!isLive(settings.testPattern))
        return renderPattern(settings, format, buffer);
    prepareGamma(settings.gamma, format);
    if (format.colors == PackedFormat::Colors::Rgb)
        renderRgb(settings, format, buffer);
    else
        renderMosaic(settings, format, buffer);
}

void SceneRenderer::renderPattern(
    const RenderSettings &settings, const PackedFormat &format, std::uint8_t *buffer)
{
    const std::size_t lineSize = format.lineSize(settings.width);
    for (int y = 0; y < settings.height; ++y, buffer += lineSize) {
        if (y >= 2 && !changesVertically(settings.testPattern)) { // Lines of a mosaic repeat after two.
            std::copy_n(buffer - 2 * lineSize, lineSize, buffer);
            continue;
        }
        testPatternLine(settings, format, m_size, settings.offsetY + y, m_quantized.data());
        packLine(format, m_quantized.data(), settings.width, buffer);
    }
}

void SceneRenderer::prepare(const RenderSettings &settings, int x, int width, int y, int height)
{
    m_firstX = x;
    m_columnCount = width;
    m_columns = sensorRange(x, width, m_size.width, settings.binningX, settings.isReversedX);
    m_sensorLine.resize(static_cast<std::size_t>(m_columns.count));
    m_pictureLine.resize(static_cast<std::size_t>(width) * 3);

    const int mosaicX = m_model.isColor && settings.isReversedX ? 1 : 0;
    const int mosaicY = m_model.isColor && settings.isReversedY ? 1 : 0;
    m_readout.beginPicture(settings, m_columns.first, m_columns.count, mosaicX, mosaicY);
    if (settings.target != SceneTarget::Chart)
        return;
    SceneArea area{m_columns.first, 0, m_columns.count, SceneCanvas::lineScanPeriod(m_model)};
    if (!m_model.isLineScan) {
        const SensorRange lines
            = sensorRange(y, height, m_size.height, settings.binningY, settings.isReversedY);
        const int margin = SceneCanvas::margin(m_model);
        area = {m_columns.first - margin, lines.first - margin, m_columns.count + 2 * margin,
            lines.count + 2 * margin};
    }
    m_canvas.prepare({settings.focusPosition, mosaicX, mosaicY}, area);
    m_shift = sceneShift(settings.frameNumber);
}

SceneRenderer::SensorRange SceneRenderer::sensorRange(
    int first, int count, int size, int binning, bool isReversed) const
{
    const int firstPixel = isReversed ? size - first - count : first;
    const int begin = firstPixel / m_step * m_step * binning;
    const int end = ((firstPixel + count - 1) / m_step + 1) * m_step * binning;
    return {begin, end - begin};
}

void SceneRenderer::renderMosaic(
    const RenderSettings &settings, const PackedFormat &format, std::uint8_t *buffer)
{
    prepare(settings, settings.offsetX, settings.width, settings.offsetY, settings.height);
    for (int y = 0; y < settings.height; ++y, buffer += format.lineSize(settings.width)) {
        readPictureLine(settings, settings.offsetY + y, m_pictureLine.data());
        finishLine(settings, format, y, m_pictureLine.data(), buffer);
    }
}

void SceneRenderer::renderRgb(
    const RenderSettings &settings, const PackedFormat &format, std::uint8_t *buffer)
{
    const int left = std::max(0, settings.offsetX - mosaicBorder);
    const int right = std::min(m_size.width, settings.offsetX + settings.width + mosaicBorder);
    const int top = std::max(0, settings.offsetY - 1);
    const int bottom = std::min(m_size.height, settings.offsetY + settings.height + 1);
    prepare(settings, left, right - left, top, bottom - top);
    for (MosaicLine &line : m_mosaicLines)
        line.y = -1;
    for (int y = 0; y < settings.height; ++y, buffer += format.lineSize(settings.width)) {
        const int line = settings.offsetY + y;
        const float *above = mosaicLine(settings, mirroredLine(line - 1, m_size.height));
        const float *center = mosaicLine(settings, line);
        const float *below = mosaicLine(settings, mirroredLine(line + 1, m_size.height));
        demosaicLine(above, center, below, settings.width, line % 2 == 0, m_pictureLine.data());
        finishLine(settings, format, y, m_pictureLine.data(), buffer);
    }
}

const float *SceneRenderer::mosaicLine(const RenderSettings &settings, int y)
{
    MosaicLine &line = m_mosaicLines[static_cast<std::size_t>(y % 3)];
    const auto width = static_cast<std::size_t>(settings.width);
    line.values.resize(width + 2 * mosaicBorder);
    float *pixels = line.values.data() + mosaicBorder;
    if (line.y == y)
        return pixels;
    line.y = y;
    readPictureLine(settings, y, pixels + (m_firstX - settings.offsetX));
    // Outside the picture, the next pixel of the same colour is used.
    if (m_firstX == settings.offsetX)
        pixels[-1] = pixels[1];
    if (m_firstX + m_columnCount == settings.offsetX + settings.width)
        pixels[width] = pixels[width - 2];
    return pixels;
}

void SceneRenderer::finishLine(const RenderSettings &settings, const PackedFormat &format, int y,
    const float *values, std::uint8_t *buffer)
{
    const int count = settings.width * (format.colors == PackedFormat::Colors::Rgb ? 3 : 1);
    const auto scale = static_cast<float>(std::ldexp(1, format.depth - 12));
    const Quantization quantization{
        scale, scale * static_cast<float>(settings.blackLevel), static_cast<float>(format.maxValue())};
    const bool isPlain = m_gammaTable.empty() && settings.testPattern == TestPattern::Off;
    if (isPlain && format.layout == PackedFormat::Layout::Bytes) // The usual case is the fastest one.
        return quantizeBytes(values, count, quantization, buffer);
    quantize(values, count, quantization, m_quantized.data());
    if (!m_gammaTable.empty())
        for (int i = 0; i < count; ++i)
            m_quantized[static_cast<std::size_t>(i)] = m_gammaTable[m_quantized[static_cast<std::size_t>(i)]];
    if (settings.testPattern == TestPattern::FrameCounter)
        addFrameCounter(settings, format, y, m_quantized.data());
    packLine(format, m_quantized.data(), settings.width, buffer);
}

void SceneRenderer::readPictureLine(const RenderSettings &settings, int y, float *values)
{
    if (settings.binningX > 1 || (settings.binningY > 1 && !m_model.isLineScan))
        readBinnedLine(settings, y, values);
    else
        readSensorLine(
            settings, settings.isReversedY && !m_model.isLineScan ? m_size.height - 1 - y : y, values);
    if (settings.isReversedX)
        std::reverse(values, values + m_columnCount);
}

void SceneRenderer::readBinnedLine(const RenderSettings &settings, int y, float *values)
{
    const int binningY = m_model.isLineScan ? 1 : settings.binningY;
    const int line = settings.isReversedY && !m_model.isLineScan ? m_size.height - 1 - y : y;
    const int first = settings.isReversedX ? m_size.width - m_firstX - m_columnCount : m_firstX;
    std::fill_n(values, m_columnCount, 0.0F);
    for (int part = 0; part < binningY; ++part) {
        readSensorLine(settings, sensorIndex(line, part, binningY, m_step), m_sensorLine.data());
        for (int i = 0; i < m_columnCount; ++i)
            for (int column = 0; column < settings.binningX; ++column)
                values[i] += m_sensorLine[static_cast<std::size_t>(
                    sensorIndex(first + i, column, settings.binningX, m_step) - m_columns.first)];
    }
    if (settings.binningMode == BinningMode::Sum)
        return;
    const float share = 1 / static_cast<float>(settings.binningX * binningY);
    for (int i = 0; i < m_columnCount; ++i)
        values[i] *= share;
}

void SceneRenderer::readSensorLine(const RenderSettings &settings, int line, float *values)
{
    const std::uint8_t *scene = m_evenScene.data();
    if (settings.target == SceneTarget::Chart && m_model.isLineScan)
        scene = m_canvas.line(m_columns.first, lineScanRow(settings, line));
    else if (settings.target == SceneTarget::Chart)
        scene = m_canvas.line(m_columns.first + m_shift.x, line + m_shift.y);
    m_readout.readLine(scene, m_model.isLineScan ? 0 : line, line, values);
}

int SceneRenderer::lineScanRow(const RenderSettings &settings, int line) const
{
    const std::uint64_t key
        = scrambled(m_model.seed + settings.frameNumber) + static_cast<std::uint64_t>(line);
    // The sum of two numbers is close enough to a normal distribution; its standard deviation is 0.408.
    const double jitter = (uniformRandom(key) + uniformRandom(~key) - 1) / 0.408;
    const double position = settings.linePosition + settings.lineStep * line + settings.lineJitter * jitter;
    const double period = SceneCanvas::lineScanPeriod(m_model);
    const double row = std::floor(position - std::floor(position / period) * period);
    return std::min(static_cast<int>(row), SceneCanvas::lineScanPeriod(m_model) - 1);
}

void SceneRenderer::prepareGamma(double gamma, const PackedFormat &format)
{
    if (gamma == m_gamma && format.depth == m_gammaDepth)
        return;
    m_gamma = gamma;
    m_gammaDepth = format.depth;
    m_gammaTable.clear();
    if (gamma == 1)
        return;
    const double maxValue = format.maxValue();
    for (int value = 0; value <= format.maxValue(); ++value)
        m_gammaTable.push_back(
            static_cast<std::uint16_t>(std::lround(maxValue * std::pow(value / maxValue, gamma))));
}
