#include "tools/kit/measure/flatfield/Uniformity.h"

#include "tools/kit/measure/flatfield/ShadingGrid.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::uint32_t fineCells = 48; // The large-scale shape that is removed from the pixels.
constexpr std::uint32_t coarseCells = 16; // The shape whose range is the shading.
constexpr double defectLimit = 6; // Robust standard deviations.

struct SpatialStatistics
{
    double mean = 0;
    double variance = 0;
};

/// Calls `visit` with the index of each pixel of the channel.
template <typename Visit>
void forEachPixel(const ChannelMosaic &mosaic, std::size_t channel, Visit visit)
{
    for (std::uint32_t y = mosaic.firstY(channel); y < mosaic.height; y += mosaic.step) {
        for (std::uint32_t x = mosaic.firstX(channel); x < mosaic.width; x += mosaic.step)
            visit(std::size_t(y) * mosaic.width + x);
    }
}

SpatialStatistics spatialStatistics(const MeanImage &image, std::size_t channel)
{
    SpatialStatistics result;
    double sum = 0;
    double count = 0;
    forEachPixel(image.mosaic, channel, [&](std::size_t pixel) {
        sum += double(image.values[pixel]);
        ++count;
    });
    result.mean = sum / count;
    double squares = 0;
    forEachPixel(image.mosaic, channel, [&](std::size_t pixel) {
        const double deviation = double(image.values[pixel]) - result.mean;
        squares += deviation * deviation;
    });
    const double temporal = image.temporalVariance[channel] / image.samples;
    result.variance = std::max(0.0, squares / std::max(1.0, count - 1) - temporal);
    return result;
}

/// Returns the deviations of the pixels from the large-scale shape.
std::vector<float> deviationsFromShape(
    const ChannelMosaic &mosaic, std::size_t channel, const std::vector<float> &values, bool isRelative)
{
    const ShadingGrid grid(mosaic, channel, values, fineCells);
    std::vector<float> deviations;
    deviations.reserve(std::size_t(mosaic.columns(channel)) * mosaic.lines(channel));
    std::vector<float> shape;
    for (std::uint32_t y = mosaic.firstY(channel); y < mosaic.height; y += mosaic.step) {
        grid.line(y, shape);
        for (std::uint32_t x = mosaic.firstX(channel); x < mosaic.width; x += mosaic.step) {
            const float deviation = values[std::size_t(y) * mosaic.width + x] - shape[x];
            deviations.push_back(isRelative ? deviation / std::max(shape[x], 1e-3F) : deviation);
        }
    }
    return deviations;
}

/// Returns the variance of the values without those that the median absolute deviation shows as outliers.
double robustVariance(const std::vector<float> &deviations)
{
    constexpr std::size_t maxSamples = 65536;
    constexpr double deviationPerMedian = 1.4826; // For a normal distribution.
    const std::size_t step = deviations.size() / maxSamples + 1;
    std::vector<float> samples;
    for (std::size_t i = 0; i < deviations.size(); i += step)
        samples.push_back(std::abs(deviations[i]));
    const auto middle = samples.begin() + static_cast<std::ptrdiff_t>(samples.size() / 2);
    std::nth_element(samples.begin(), middle, samples.end());
    const double limit = *middle > 0 ? defectLimit * deviationPerMedian * double(*middle) : INFINITY;
    double sum = 0;
    double squares = 0;
    double count = 0;
    for (const float deviation : deviations) {
        if (std::abs(double(deviation)) > limit)
            continue;
        sum += double(deviation);
        squares += double(deviation) * double(deviation);
        ++count;
    }
    return squares / count - (sum / count) * (sum / count);
}

ChannelUniformity measureChannel(
    const MeanImage &dark, const MeanImage &bright, const std::vector<float> &signal, std::size_t channel)
{
    const ChannelMosaic &mosaic = dark.mosaic;
    const SpatialStatistics darkSpatial = spatialStatistics(dark, channel);
    const SpatialStatistics brightSpatial = spatialStatistics(bright, channel);
    const double darkTemporal = dark.temporalVariance[channel];
    const double brightTemporal = bright.temporalVariance[channel];
    const double mean = brightSpatial.mean - darkSpatial.mean;

    ChannelUniformity result;
    result.name = mosaic.name(channel);
    result.darkLevel = darkSpatial.mean;
    result.brightLevel = brightSpatial.mean;
    result.darkNoise = std::sqrt(darkTemporal);
    result.brightNoise = std::sqrt(brightTemporal);
    result.dsnu = std::sqrt(darkSpatial.variance);
    const double darkPixels = robustVariance(deviationsFromShape(mosaic, channel, dark.values, false));
    result.pixelDsnu = std::sqrt(std::max(0.0, darkPixels - darkTemporal / dark.samples));
    if (mean <= 0)
        return result;
    if (brightTemporal > darkTemporal)
        result.systemGain = (brightTemporal - darkTemporal) / mean;
    result.prnu = std::sqrt(std::max(0.0, brightSpatial.variance - darkSpatial.variance)) / mean;
    const double noise = (brightTemporal / bright.samples + darkTemporal / dark.samples) / (mean * mean);
    const double brightPixels = robustVariance(deviationsFromShape(mosaic, channel, signal, true));
    result.pixelPrnu = std::sqrt(std::max(0.0, brightPixels - noise));
    result.shading = ShadingGrid(mosaic, channel, signal, coarseCells).range();
    return result;
}

/// Returns the means of the columns or of the lines.
/// @param position Returns the column or the line of a pixel's index.
template <typename Position>
UniformityProfile profileOf(const ChannelMosaic &mosaic, const std::vector<float> &signal,
    const std::vector<double> &levels, std::uint32_t size, Position position)
{
    const std::size_t points = std::min(Uniformity::profilePoints, std::size_t(size / mosaic.step));
    UniformityProfile sums(points);
    std::vector<double> counts(points);
    for (std::size_t channel = 0; channel < mosaic.channels(); ++channel) {
        const double scale = levels[channel] > 0 ? 1 / levels[channel] : 0;
        forEachPixel(mosaic, channel, [&](std::size_t pixel) {
            const std::size_t point = std::size_t(position(pixel)) * points / size;
            sums[point] += double(signal[pixel]) * scale;
            ++counts[point];
        });
    }
    for (std::size_t point = 0; point < points; ++point)
        sums[point] /= std::max(1.0, counts[point]);
    return sums;
}

double rootMeanSquare(
    const std::vector<ChannelUniformity> &channels, double ChannelUniformity::*member, double scale = 1)
{
    double squares = 0;
    for (const ChannelUniformity &channel : channels)
        squares += channel.*member * channel.*member;
    return scale * std::sqrt(squares / static_cast<double>(channels.size()));
}

/// Returns the mean of the inverse system gains, which all channels share.
std::optional<double> electronsPerValue(const std::vector<ChannelUniformity> &channels)
{
    double sum = 0;
    for (const ChannelUniformity &channel : channels) {
        if (!channel.systemGain)
            return std::nullopt;
        sum += *channel.systemGain;
    }
    return static_cast<double>(channels.size()) / sum;
}

} // namespace

Uniformity measureUniformity(const MeanImage &dark, const MeanImage &bright)
{
    const ChannelMosaic &mosaic = dark.mosaic;
    std::vector<float> signal(bright.values);
    std::transform(signal.begin(), signal.end(), dark.values.begin(), signal.begin(),
        [](float light, float offset) { return light - offset; });

    Uniformity result;
    std::vector<double> levels;
    for (std::size_t channel = 0; channel < mosaic.channels(); ++channel) {
        result.channels.push_back(measureChannel(dark, bright, signal, channel));
        result.shading = std::max(result.shading, result.channels.back().shading);
        levels.push_back(result.channels.back().brightLevel - result.channels.back().darkLevel);
    }
    result.dsnu = rootMeanSquare(result.channels, &ChannelUniformity::dsnu);
    result.prnu = rootMeanSquare(result.channels, &ChannelUniformity::prnu);
    result.pixelDsnu = rootMeanSquare(result.channels, &ChannelUniformity::pixelDsnu);
    result.pixelPrnu = rootMeanSquare(result.channels, &ChannelUniformity::pixelPrnu);
    if (const std::optional<double> electrons = electronsPerValue(result.channels)) {
        result.dsnuElectrons = result.dsnu * *electrons;
        result.pixelDsnuElectrons = result.pixelDsnu * *electrons;
    }
    result.horizontal = profileOf(mosaic, signal, levels, mosaic.width,
        [width = mosaic.width](std::size_t pixel) { return pixel % width; });
    if (mosaic.height > 1)
        result.vertical = profileOf(mosaic, signal, levels, mosaic.height,
            [width = mosaic.width](std::size_t pixel) { return pixel / width; });
    return result;
}
