#include "sdk/simulator/SceneReadout.h"

#include "sdk/simulator/SceneCanvas.h"
#include "sdk/simulator/SceneKernels.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double maxValue12 = 4095;

double brightness(SceneTarget target)
{
    return target == SceneTarget::LensCap ? 0 : 1;
}
} // namespace

SceneReadout::SceneReadout(const SensorModel &model, const SensorFlaws &flaws)
    : m_model(model), m_flaws(flaws), m_noise(model.seed + 3, 0, 1, model.width)
{
    for (int x = 0; x < model.width; ++x)
        m_columnShading.push_back(static_cast<float>(std::sqrt(flaws.columnShading(x))));
    for (int y = 0; y < (model.isLineScan ? 1 : model.height); ++y)
        m_lineShading.push_back(static_cast<float>(std::sqrt(flaws.lineShading(y))));
}

void SceneReadout::beginPicture(
    const RenderSettings &settings, int firstColumn, int columns, int mosaicX, int mosaicY)
{
    m_firstColumn = firstColumn;
    m_count = columns;
    m_mosaicY = mosaicY;
    m_frameNumber = settings.frameNumber;
    m_frameKey = scrambled(scrambled(m_model.seed) + settings.frameNumber);
    m_darkSeconds = settings.exposureTime * 1e-6 * SensorFlaws::darkFactor(settings.temperature);
    const double darkElectrons = m_model.darkCurrent * m_darkSeconds;
    m_darkMean = static_cast<float>(darkElectrons);
    m_darkDeviation = static_cast<float>(std::sqrt(m_model.readNoise * m_model.readNoise + darkElectrons));
    prepareTaps(settings);
    for (int row = 0; row < (m_model.isColor ? 2 : 1); ++row)
        prepareColumns(settings, row, mosaicX);
}

void SceneReadout::prepareTaps(const RenderSettings &settings)
{
    const double unitsPerElectron = maxValue12 / m_model.fullWell * settings.gain;
    m_taps.clear();
    for (int i = 0; i < m_count;) {
        const int number = m_flaws.tap(m_firstColumn + i);
        const int end = std::min(m_count, m_flaws.tapEnd(number) - m_firstColumn);
        const auto tap = static_cast<std::size_t>(number);
        m_taps.push_back({i, end - i, unitsPerElectron * m_flaws.tapGain(number) * settings.tapGain.at(tap),
            static_cast<float>(m_flaws.tapOffset(number) + settings.tapBlackLevel.at(tap))});
        i = end;
    }
}

void SceneReadout::prepareColumns(const RenderSettings &settings, int row, int mosaicX)
{
    Columns &columns = m_columns.at(static_cast<std::size_t>(row));
    columns.light.resize(static_cast<std::size_t>(m_count));
    columns.gain.resize(columns.light.size());

    const double white = settings.exposureTime * m_model.sensitivity * brightness(settings.target);
    std::array<float, 2> light{};
    std::array<double, 2> balance{1, 1};
    for (std::size_t parity = 0; parity < 2; ++parity) {
        double electrons = white;
        if (m_model.isColor) {
            const std::size_t channel
                = static_cast<std::size_t>(row) + (parity + static_cast<std::size_t>(mosaicX)) % 2;
            electrons *= SensorFlaws::colorResponse().at(channel);
            balance.at(parity) = settings.balanceRatio.at(channel);
        }
        light.at(parity) = static_cast<float>(std::sqrt(electrons)) / SceneCanvas::fullScale;
    }
    for (std::size_t i = 0; i < columns.light.size(); ++i) {
        const std::size_t x = static_cast<std::size_t>(m_firstColumn) + i;
        columns.light[i] = light[x % 2] * m_columnShading[x];
    }

    for (const TapColumns &tap : m_taps) {
        for (int i = tap.first; i < tap.first + tap.count; ++i)
            columns.gain[static_cast<std::size_t>(i)]
                = static_cast<float>(tap.gain * balance[static_cast<std::size_t>((m_firstColumn + i) & 1)]);
    }
}

void SceneReadout::readLine(const std::uint8_t *scene, int sensorLine, int pictureLine, float *values) const
{
    const auto row = static_cast<std::size_t>(m_model.isColor ? (sensorLine + m_mosaicY) & 1 : 0);
    const std::uint64_t lineKey = scrambled(m_frameKey + static_cast<std::uint64_t>(pictureLine));
    for (const TapColumns &tap : m_taps) {
        SignalLine line{};
        line.scene = scene + tap.first;
        line.columnLight = m_columns[row].light.data() + tap.first;
        line.lineLight = m_lineShading[static_cast<std::size_t>(sensorLine)];
        line.response = m_flaws.photoResponseLine(sensorLine) + m_firstColumn + tap.first;
        line.shotNoise = m_noise.line(lineKey) + m_firstColumn + tap.first;
        line.darkNoise = m_noise.line(lineKey >> 32) + m_firstColumn + tap.first;
        line.darkDeviation = m_darkDeviation;
        line.darkMean = m_darkMean;
        line.darkSignal = m_flaws.darkSignalLine(sensorLine) + m_firstColumn + tap.first;
        line.gain = m_columns[row].gain.data() + tap.first;
        line.offset = tap.offset;
        computeSignal(line, tap.count, values + tap.first);
    }
    addDefects(sensorLine, values);
}

void SceneReadout::addDefects(int sensorLine, float *values) const
{
    const auto row = static_cast<std::size_t>(m_model.isColor ? (sensorLine + m_mosaicY) & 1 : 0);
    const auto [first, end] = m_flaws.defectsOfLine(sensorLine);
    for (std::size_t i = first; i < end; ++i) {
        const DefectPixel &defect = m_flaws.defects()[i];
        const int column = defect.x - m_firstColumn;
        if (column < 0 || column >= m_count)
            continue;
        float &value = values[column];
        const float gain = m_columns[row].gain[static_cast<std::size_t>(column)];
        switch (defect.kind) {
        case DefectPixel::Kind::StuckBlack:
            value = static_cast<float>(-maxValue12);
            break;
        case DefectPixel::Kind::StuckWhite:
            value = static_cast<float>(maxValue12);
            break;
        case DefectPixel::Kind::Hot:
            value += gain * static_cast<float>(defect.strength * m_darkSeconds);
            break;
        case DefectPixel::Kind::Blinking:
            if (m_flaws.isBlinkingOn(i, m_frameNumber))
                value += gain * static_cast<float>(defect.strength);
            break;
        }
    }
}
