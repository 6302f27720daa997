#pragma once

#include "sdk/simulator/SceneRenderer.h"

#include <cstring>
#include <numeric>
#include <vector>

constexpr std::uint32_t mono8 = 0x01080001;
constexpr std::uint32_t mono16 = 0x01100007;
constexpr std::uint32_t bayerRG8 = 0x01080009;
constexpr std::uint32_t bayerRG12 = 0x01100011;
constexpr std::uint32_t rgb8 = 0x02180014;

/// The values of a rendered picture; three for each pixel of RGB8.
struct RenderedPicture
{
    int width = 0;
    int height = 0;
    std::vector<int> values;

    int at(int x, int y) const { return values.at(static_cast<std::size_t>(y * width + x)); }

    /// Returns the mean of every `step`-th pixel in both directions.
    double mean(int x, int y, int areaWidth, int areaHeight, int step = 1) const
    {
        double sum = 0;
        int count = 0;
        for (int line = y; line < y + areaHeight; line += step)
            for (int column = x; column < x + areaWidth; column += step, ++count)
                sum += at(column, line);
        return sum / count;
    }
    double mean() const { return mean(0, 0, width, height); }

    double variance() const
    {
        const double center = mean();
        double sum = 0;
        for (const int value : values)
            sum += (value - center) * (value - center);
        return sum / static_cast<double>(values.size());
    }
};

inline std::vector<std::uint8_t> renderBytes(SceneRenderer &renderer, const RenderSettings &settings)
{
    std::vector<std::uint8_t> bytes(imageSize(settings));
    renderer.render(settings, bytes.data());
    return bytes;
}

/// Renders a picture in a format with 8 or 16 bits per value.
inline RenderedPicture render(SceneRenderer &renderer, const RenderSettings &settings)
{
    const std::vector<std::uint8_t> bytes = renderBytes(renderer, settings);
    RenderedPicture picture{settings.width, settings.height, {}};
    if (pixelFormat(settings.pixelFormat).layout == PackedFormat::Layout::Bytes) {
        picture.values.assign(bytes.begin(), bytes.end());
        return picture;
    }
    std::vector<std::uint16_t> words(bytes.size() / 2);
    std::memcpy(words.data(), bytes.data(), bytes.size());
    picture.values.assign(words.begin(), words.end());
    return picture;
}

inline RenderedPicture render(const SensorModel &model, const RenderSettings &settings)
{
    SceneRenderer renderer(model);
    return render(renderer, settings);
}

/// Returns a sensor that has noise but no other flaw.
inline SensorModel flawlessSensor(int width = 256, int height = 192)
{
    SensorModel model;
    model.width = width;
    model.height = height;
    model.photoResponse = 0;
    model.darkSignal = 0;
    model.darkCurrent = 0;
    return model;
}

/// Returns a sensor with so many electrons that the noise is smaller than a step of 12 bits.
inline SensorModel noiselessSensor(int width = 256, int height = 192)
{
    SensorModel model = flawlessSensor(width, height);
    model.readNoise = 0;
    model.sensitivity *= 1e6;
    model.fullWell *= 1e6;
    return model;
}

/// Returns settings for a picture of the whole sensor.
inline RenderSettings wholeSensor(const SensorModel &model, std::uint32_t pixelFormat = mono16)
{
    RenderSettings settings;
    settings.width = model.width;
    settings.height = model.height;
    settings.pixelFormat = pixelFormat;
    return settings;
}

inline RenderSettings flatField(const SensorModel &model, std::uint32_t pixelFormat = mono16)
{
    RenderSettings settings = wholeSensor(model, pixelFormat);
    settings.target = SceneTarget::FlatField;
    settings.exposureTime = 5000;
    return settings;
}

inline RenderSettings darkPicture(const SensorModel &model)
{
    RenderSettings settings = wholeSensor(model);
    settings.target = SceneTarget::LensCap;
    return settings;
}

/// Value of a picture in Mono16 for one electron with gain 1, and for a unit of a 12-bit pixel.
constexpr int mono16PerUnit = 16;
inline double mono16PerElectron(const SensorModel &model)
{
    return mono16PerUnit * 4095 / model.fullWell;
}
