#include "tests/kit/measure/defects/SensorPictures.h"

#include "sdk/simulator/SceneRenderer.h"
#include "tests/kit/measure/defects/PictureAdder.h"

namespace {
constexpr int linesOfPicture = 64; // Lines in a picture of a line scan sensor.
}

SensorPictures::SensorPictures(const SensorModel &model)
    : m_model(model), m_renderer(std::make_unique<SceneRenderer>(model))
{ }

SensorPictures::~SensorPictures() = default;

RenderSettings SensorPictures::settings(
    SceneTarget target, double exposureTime, std::uint32_t pixelFormat) const
{
    RenderSettings settings;
    settings.width = m_model.width;
    settings.height = m_model.isLineScan ? linesOfPicture : m_model.height;
    settings.pixelFormat = pixelFormat;
    settings.target = target;
    settings.exposureTime = exposureTime;
    return settings;
}

std::vector<std::uint8_t> SensorPictures::render(const RenderSettings &settings)
{
    std::vector<std::uint8_t> bytes(imageSize(settings));
    m_renderer->render(settings, bytes.data());
    return bytes;
}

PixelStatistics SensorPictures::statistics(RenderSettings settings, unsigned images)
{
    StatisticsLayout layout;
    layout.width = static_cast<std::uint32_t>(settings.width);
    layout.height = m_model.isLineScan ? 1 : static_cast<std::uint32_t>(settings.height);
    layout.colorStep = m_model.isColor ? 2 : 1;
    layout.maxValue = pixelFormat(settings.pixelFormat).maxValue();
    PixelStatistics statistics(layout);
    for (unsigned i = 0; i < images; ++i, ++settings.frameNumber)
        addPicture(statistics, rawImage(settings, render(settings)));
    return statistics;
}

RawImage rawImage(const RenderSettings &settings, const std::vector<std::uint8_t> &bytes)
{
    RawImage picture;
    picture.data = bytes.data();
    picture.size = bytes.size();
    picture.width = static_cast<std::uint32_t>(settings.width);
    picture.height = static_cast<std::uint32_t>(settings.height);
    picture.pixelFormat = settings.pixelFormat;
    return picture;
}
