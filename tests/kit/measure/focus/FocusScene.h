#pragma once

#include "sdk/simulator/RenderSettings.h"
#include "sdk/simulator/SensorModel.h"

#include <cstdint>
#include <memory>
#include <vector>

class SceneRenderer;

/// What a simulated sensor sees. A library of its own, because the simulator and sdk/image both have a type
/// PixelFormat.
class FocusScene
{
public:
    explicit FocusScene(const SensorModel &model);
    ~FocusScene();

    std::vector<std::uint8_t> render(const RenderSettings &settings);

private:
    std::unique_ptr<SceneRenderer> m_renderer;
};
