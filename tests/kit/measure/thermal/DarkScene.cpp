#include "tests/kit/measure/thermal/DarkScene.h"

#include "tests/simulator/RenderedPicture.h"

DarkScene::DarkScene(bool isColor)
{
    m_model.width = 320;
    m_model.height = 240;
    m_model.isColor = isColor;
    m_renderer = std::make_unique<SceneRenderer>(m_model);
}

DarkScene::~DarkScene() = default;

RenderSettings DarkScene::darkPicture(std::uint32_t pixelFormat) const
{
    RenderSettings settings = ::darkPicture(m_model);
    settings.pixelFormat = pixelFormat;
    settings.exposureTime = 500000;
    return settings;
}

std::vector<std::uint8_t> DarkScene::render(const RenderSettings &settings)
{
    return renderBytes(*m_renderer, settings);
}
