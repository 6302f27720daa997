#include "tools/kit/measure/flatfield/FlatFieldBuilder.h"

#include "tools/kit/measure/flatfield/ShadingGrid.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr std::uint32_t gainCells = 48;
constexpr std::uint32_t levelCells = 16;
constexpr double gainDefectLimit = 0.2; // Relative to the median of the neighbours.
constexpr double offsetDefectLimit = 0.02; // Share of the range of values.

/// Median of the nearest pixels of the same colour.
class NeighbourMedian
{
public:
    NeighbourMedian(const ChannelMosaic &mosaic, const std::vector<float> &values)
        : m_mosaic(mosaic), m_values(values)
    { }

    float at(std::uint32_t x, std::uint32_t y) const
    {
        std::array<float, 8> found{};
        std::size_t count = 0;
        const auto add = [&](std::int64_t nx, std::int64_t ny) {
            if (nx >= 0 && ny >= 0 && nx < m_mosaic.width && ny < m_mosaic.height && count < found.size())
                found[count++] = m_values[std::size_t(ny) * m_mosaic.width + std::size_t(nx)];
        };
        const std::int64_t step = m_mosaic.step;
        if (m_mosaic.height == 1) {
            for (std::int64_t distance = -4; distance <= 4; ++distance) {
                if (distance != 0)
                    add(x + distance * step, y);
            }
        } else {
            for (std::int64_t i = 0; i < 9; ++i) {
                if (i != 4)
                    add(x + (i % 3 - 1) * step, y + (i / 3 - 1) * step);
            }
        }
        if (count == 0)
            return m_values[std::size_t(y) * m_mosaic.width + x];
        const auto middle = found.begin() + static_cast<std::ptrdiff_t>(count / 2);
        std::nth_element(found.begin(), middle, found.begin() + static_cast<std::ptrdiff_t>(count));
        return *middle;
    }

    /// Returns the value of the nearest pixel on the left, or on the right at the edge.
    float beside(std::uint32_t x, std::uint32_t y) const
    {
        const std::uint32_t other
            = x >= m_mosaic.step ? x - m_mosaic.step : std::min(x + m_mosaic.step, m_mosaic.width - 1);
        return m_values[std::size_t(y) * m_mosaic.width + other];
    }

private:
    const ChannelMosaic &m_mosaic;
    const std::vector<float> &m_values;
};

std::vector<float> differenceOf(const std::vector<float> &bright, const std::vector<float> &dark)
{
    std::vector<float> difference(bright.size());
    std::transform(bright.begin(), bright.end(), dark.begin(), difference.begin(),
        [](float light, float offset) { return light - offset; });
    return difference;
}

/// Returns the level of each channel after the correction; channels of a colour have the same.
std::vector<double> targetLevels(
    const ChannelMosaic &mosaic, const std::vector<float> &signal, GainLevel level)
{
    std::vector<double> own;
    for (std::size_t channel = 0; channel < mosaic.channels(); ++channel) {
        const ShadingGrid grid(mosaic, channel, signal, levelCells);
        own.push_back(level == GainLevel::Mean ? grid.mean() : grid.highest());
    }
    std::vector<double> targets;
    for (std::size_t channel = 0; channel < own.size(); ++channel) {
        double sum = 0;
        double count = 0;
        double highest = 0;
        for (std::size_t other = 0; other < own.size(); ++other) {
            if (!mosaic.isSameColor(channel, other))
                continue;
            sum += own[other];
            highest = std::max(highest, own[other]);
            ++count;
        }
        targets.push_back(level == GainLevel::Mean ? sum / count : highest);
    }
    return targets;
}

float gainFor(double target, double signal)
{
    constexpr double beyond = 2 * maxFlatFieldGain; // A pixel without a signal has no gain.
    return static_cast<float>(signal * beyond > target ? target / signal : beyond);
}

/// Returns the gains of every pixel, without limits.
std::vector<float> pixelGains(
    const ChannelMosaic &mosaic, const std::vector<float> &signal, const std::vector<double> &targets)
{
    std::vector<float> gains(signal.size());
    for (std::size_t pixel = 0; pixel < gains.size(); ++pixel) {
        const auto y = static_cast<std::uint32_t>(pixel / mosaic.width);
        const auto x = static_cast<std::uint32_t>(pixel % mosaic.width);
        gains[pixel] = gainFor(targets[mosaic.channel(x, y)], double(signal[pixel]));
    }
    return gains;
}

/// Returns the gains of the large-scale shape.
std::vector<float> shadingGains(
    const ChannelMosaic &mosaic, const std::vector<float> &signal, const std::vector<double> &targets)
{
    std::vector<float> gains(signal.size());
    std::vector<float> shape;
    for (std::size_t channel = 0; channel < mosaic.channels(); ++channel) {
        const ShadingGrid grid(mosaic, channel, signal, gainCells);
        for (std::uint32_t y = mosaic.firstY(channel); y < mosaic.height; y += mosaic.step) {
            grid.line(y, shape);
            for (std::uint32_t x = mosaic.firstX(channel); x < mosaic.width; x += mosaic.step)
                gains[std::size_t(y) * mosaic.width + x] = gainFor(targets[channel], double(shape[x]));
        }
    }
    return gains;
}

/// Finds the pixels whose offset or gain deviates from their neighbours.
class DefectFinder
{
public:
    DefectFinder(const MeanImage &dark, const std::vector<float> &gains)
        : m_offsets(dark.mosaic, dark.values),
          m_gains(dark.mosaic, gains),
          m_offsetLimit(static_cast<float>(offsetDefectLimit * dark.maxValue()))
    { }

    bool isDefect(std::uint32_t x, std::uint32_t y, float offset, float gain) const
    {
        // Nearly all pixels are like the one beside them, which is found faster than the median.
        constexpr auto limit = static_cast<float>(gainDefectLimit);
        const bool isOffsetSuspect = std::abs(offset - m_offsets.beside(x, y)) > m_offsetLimit / 2;
        const bool isGainSuspect = std::abs(gain / m_gains.beside(x, y) - 1) > limit / 2;
        if (isOffsetSuspect && std::abs(offset - m_offsets.at(x, y)) > m_offsetLimit)
            return true;
        return isGainSuspect && std::abs(gain / m_gains.at(x, y) - 1) > limit;
    }

    float gainOfNeighbours(std::uint32_t x, std::uint32_t y) const { return m_gains.at(x, y); }

private:
    const NeighbourMedian m_offsets;
    const NeighbourMedian m_gains;
    const float m_offsetLimit;
};

/// Returns the gains with those of defect pixels replaced.
std::vector<float> withoutDefects(
    const MeanImage &dark, const std::vector<float> &gains, std::uint32_t &defects)
{
    const ChannelMosaic &mosaic = dark.mosaic;
    const DefectFinder finder(dark, gains);
    std::vector<float> result(gains);
    for (std::size_t pixel = 0; pixel < gains.size(); ++pixel) {
        const auto y = static_cast<std::uint32_t>(pixel / mosaic.width);
        const auto x = static_cast<std::uint32_t>(pixel % mosaic.width);
        if (!finder.isDefect(x, y, dark.values[pixel], gains[pixel]))
            continue;
        result[pixel] = finder.gainOfNeighbours(x, y);
        ++defects;
    }
    return result;
}

double darkLevel(const MeanImage &dark)
{
    double sum = 0;
    for (std::size_t channel = 0; channel < dark.mosaic.channels(); ++channel)
        sum += ShadingGrid(dark.mosaic, channel, dark.values, levelCells).mean();
    return sum / static_cast<double>(dark.mosaic.channels());
}

void limitGains(BuiltFlatField &built)
{
    for (float &gain : built.field.gain) {
        const float limited
            = std::clamp(gain, static_cast<float>(minFlatFieldGain), static_cast<float>(maxFlatFieldGain));
        built.limitedPixels += limited != gain;
        gain = limited;
    }
    const auto [lowest, highest] = std::minmax_element(built.field.gain.begin(), built.field.gain.end());
    built.lowestGain = double(*lowest);
    built.highestGain = double(*highest);
}

} // namespace

BuiltFlatField buildFlatField(
    const MeanImage &dark, const MeanImage &bright, GainDetail detail, GainLevel level)
{
    const ChannelMosaic &mosaic = dark.mosaic;
    const std::vector<float> signal = differenceOf(bright.values, dark.values);
    const std::vector<double> targets = targetLevels(mosaic, signal, level);

    BuiltFlatField built;
    FlatField &field = built.field;
    field.offsetX = dark.offsetX;
    field.offsetY = dark.offsetY;
    field.width = mosaic.width;
    field.height = mosaic.height;
    field.depth = dark.depth;
    field.blackLevel = darkLevel(dark);
    field.offset = dark.values;
    if (detail == GainDetail::EveryPixel)
        field.gain = withoutDefects(dark, pixelGains(mosaic, signal, targets), built.defectPixels);
    else
        field.gain = shadingGains(mosaic, signal, targets);
    limitGains(built);
    return built;
}

MeanImage correctedMean(const MeanImage &image, const FlatField &field)
{
    MeanImage corrected = image;
    std::vector<double> squaredGains(image.mosaic.channels());
    for (std::size_t pixel = 0; pixel < corrected.values.size(); ++pixel) {
        const double gain = double(field.gain[pixel]);
        corrected.values[pixel] = static_cast<float>(
            (double(image.values[pixel]) - double(field.offset[pixel])) * gain + field.blackLevel);
        const auto y = static_cast<std::uint32_t>(pixel / image.mosaic.width);
        const auto x = static_cast<std::uint32_t>(pixel % image.mosaic.width);
        squaredGains[image.mosaic.channel(x, y)] += gain * gain;
    }
    for (std::size_t channel = 0; channel < squaredGains.size(); ++channel)
        corrected.temporalVariance[channel]
            *= squaredGains[channel] / (double(image.mosaic.columns(channel)) * image.mosaic.lines(channel));
    return corrected;
}
