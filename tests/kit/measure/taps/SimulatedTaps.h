#pragma once

#include "sdk/simulator/RenderSettings.h"
#include "sdk/simulator/SensorFlaws.h"
#include "tests/features/ScriptedDevice.h"
#include "tools/kit/measure/run/MeasureContext.h"

class SceneRenderer;

/// Returns the sensor of a camera of the simulator, with a small picture: shading, defects, noise and taps.
SensorModel sensorWithTaps(int taps = 4, double mismatch = 0.06);

/// A camera whose taps have gains and black levels, and whose images are those of a simulated sensor.
class SimulatedTaps final : public ScriptedDevice, public FrameSource
{
public:
    explicit SimulatedTaps(const SensorModel &model);
    ~SimulatedTaps() override;

    CvxCPP::CvxResult next(
        std::chrono::milliseconds timeout, std::shared_ptr<const CvxCPP::Image> &image) override;
    void discard() override { }

    /// Returns how much the gains of the sensor and of the camera together deviate from their mean, at most.
    double trueMismatch();
    /// Returns the largest difference of the black levels, in units of a 12-bit pixel.
    double trueBlackLevelRange();

    double tapValue(const std::string &feature, int tap); ///< Counted from 1.

    RenderSettings settings; ///< Without those of the taps.
    bool isGainLinear = false; ///< The feature "Gain" has no unit; 1 is the smallest gain.
    std::uint64_t frames = 0;

private:
    RenderSettings present();

    const SensorModel m_model;
    const SensorFlaws m_flaws;
    const std::unique_ptr<SceneRenderer> m_renderer;
};
