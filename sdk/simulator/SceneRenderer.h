#pragma once

#include "sdk/simulator/RenderSettings.h"
#include "sdk/simulator/SensorFlaws.h"
#include "sdk/simulator/SensorModel.h"

#include <cstddef>
#include <cstdint>
#include <memory>

/// Renders the pictures of one simulated camera. A picture depends only on the sensor model and the settings.
/// The first picture, and each first picture with another region, focus position, reversal or target, takes
/// longer, because the scene without noise is kept between pictures. Use each object on one thread at a time.
class SceneRenderer
{
public:
    explicit SceneRenderer(const SensorModel &model);
    ~SceneRenderer();

    /// Returns the flaws of the sensor, to compare measurements with them.
    const SensorFlaws &flaws() const;

    /// Renders one picture into a buffer of at least imageSize(settings) bytes. Lines follow each other
    /// without padding except to whole bytes. The region must lie on the sensor, and the sensor must offer
    /// the pixel format.
    void render(const RenderSettings &settings, std::uint8_t *buffer);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

/// Returns the number of bytes of a picture.
std::size_t imageSize(const RenderSettings &settings);
