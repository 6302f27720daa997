#pragma once

#include "sdk/simulator/RenderSettings.h"
#include "sdk/simulator/SensorModel.h"
#include "tools/kit/measure/defects/PixelStatistics.h"

#include <cstdint>
#include <memory>
#include <vector>

class SceneRenderer;

/// The pictures of a simulated sensor, for code that also uses the SDK's pixel formats.
class SensorPictures
{
public:
    explicit SensorPictures(const SensorModel &model);
    ~SensorPictures();

    /// Returns settings for the whole sensor; pictures of line scan sensors have 64 lines.
    RenderSettings settings(SceneTarget target, double exposureTime, std::uint32_t pixelFormat) const;

    std::vector<std::uint8_t> render(const RenderSettings &settings);

    /// Renders pictures with increasing frame numbers, and returns their statistics.
    PixelStatistics statistics(RenderSettings settings, unsigned images);

private:
    const SensorModel m_model;
    std::unique_ptr<SceneRenderer> m_renderer;
};

/// Returns the view of a rendered picture.
RawImage rawImage(const RenderSettings &settings, const std::vector<std::uint8_t> &bytes);

constexpr std::uint32_t mono8Code = 0x01080001;
constexpr std::uint32_t mono12Code = 0x01100005;
constexpr std::uint32_t mono12pCode = 0x010C0047;
constexpr std::uint32_t bayerRG8Code = 0x01080009;
constexpr std::uint32_t bayerRG12Code = 0x01100011;
