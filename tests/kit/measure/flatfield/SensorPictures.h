#pragma once

#include "sdk/simulator/RenderSettings.h"
#include "sdk/simulator/SensorModel.h"

#include <cstdint>
#include <memory>
#include <vector>

class SceneRenderer;

/// Pictures of a simulated sensor. A library of its own, because the simulator and sdk/image both have a type
/// PixelFormat.
class SensorPictures
{
public:
    explicit SensorPictures(const SensorModel &model);
    ~SensorPictures();

    std::vector<std::uint8_t> picture(const RenderSettings &settings);

private:
    std::unique_ptr<SceneRenderer> m_renderer;
};
