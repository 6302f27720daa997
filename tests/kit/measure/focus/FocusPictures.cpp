#include "tests/kit/measure/focus/FocusPictures.h"

#include <gtest/gtest.h>

SensorModel FocusPictures::sensor()
{
    SensorModel model;
    model.width = 640;
    model.height = 480;
    model.shading = 0.3;
    model.hotPixels = 60;
    model.stuckPixels = 10;
    model.blinkingPixels = 5;
    model.focusPosition = 487;
    return model;
}

SensorModel FocusPictures::lineSensor()
{
    SensorModel model = sensor();
    model.width = 1024;
    model.height = 1;
    model.isLineScan = true;
    model.sensitivity = 100;
    return model;
}

SensorModel FocusPictures::colorSensor()
{
    SensorModel model = sensor();
    model.isColor = true;
    return model;
}

FocusPictures::FocusPictures(const SensorModel &model, std::uint32_t pixelFormat) : m_scene(model)
{
    settings.width = model.width;
    settings.height = model.isLineScan ? model.width * 3 / 4 : model.height; // The scene repeats then.
    settings.pixelFormat = pixelFormat;
    settings.exposureTime = model.isLineScan ? 80 : 8000;
    settings.focusPosition = model.focusPosition;
    options.blackLevel = settings.blackLevel / 4095;
    options.isLineScan = model.isLineScan;
    if (model.isLineScan)
        options.grid = {9, 1};
}

FocusMeasurement FocusPictures::measure()
{
    FocusMeasurement measurement;
    const std::vector<std::uint8_t> bytes = m_scene.render(settings);
    const Sentence problem
        = m_meter.measure({bytes.data(), bytes.size(), static_cast<std::uint32_t>(settings.width),
                              static_cast<std::uint32_t>(settings.height), 0, settings.pixelFormat, false},
            options, measurement);
    EXPECT_TRUE(problem.isEmpty()) << toEnglish(problem);
    return measurement;
}

std::string FocusPictures::problem()
{
    return toEnglish(measure().problem);
}

std::vector<FocusSample> FocusPictures::sweep(double from, double to, double step)
{
    std::vector<FocusSample> samples;
    for (double position = from; position <= to; position += step) {
        settings.focusPosition = position;
        ++settings.frameNumber;
        samples.push_back({position, measure()});
    }
    return samples;
}
