#include "tests/kit/measure/flatfield/SensorPictures.h"

#include "sdk/simulator/SceneRenderer.h"

SensorPictures::SensorPictures(const SensorModel &model) : m_renderer(std::make_unique<SceneRenderer>(model))
{ }

SensorPictures::~SensorPictures() = default;

std::vector<std::uint8_t> SensorPictures::picture(const RenderSettings &settings)
{
    std::vector<std::uint8_t> bytes(imageSize(settings));
    m_renderer->render(settings, bytes.data());
    return bytes;
}
