#include "tests/kit/measure/focus/FocusScene.h"

#include "sdk/simulator/SceneRenderer.h"

FocusScene::FocusScene(const SensorModel &model) : m_renderer(std::make_unique<SceneRenderer>(model)) { }

FocusScene::~FocusScene() = default;

std::vector<std::uint8_t> FocusScene::render(const RenderSettings &settings)
{
    std::vector<std::uint8_t> bytes(imageSize(settings));
    m_renderer->render(settings, bytes.data());
    return bytes;
}
