#pragma once

#include "sdk/simulator/RenderSettings.h"
#include "sdk/simulator/SensorModel.h"

#include <cstdint>
#include <memory>
#include <vector>

class SceneRenderer;

/// A simulated sensor. Keeps the simulator's names apart from those of the library that reads pictures.
class DarkScene
{
public:
    explicit DarkScene(bool isColor = false);
    ~DarkScene();

    /// Returns the settings of a dark picture of the whole sensor with a long exposure.
    RenderSettings darkPicture(std::uint32_t pixelFormat) const;

    std::vector<std::uint8_t> render(const RenderSettings &settings);

private:
    SensorModel m_model;
    std::unique_ptr<SceneRenderer> m_renderer;
};
