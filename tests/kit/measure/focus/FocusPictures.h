#pragma once

#include "tests/kit/measure/focus/FocusScene.h"
#include "tools/kit/measure/focus/FocusMeter.h"
#include "tools/kit/measure/focus/FocusSeries.h"

#include <cstdint>
#include <vector>

constexpr std::uint32_t focusMono8 = 0x01080001;
constexpr std::uint32_t focusMono12p = 0x010C0047;
constexpr std::uint32_t focusMono16 = 0x01100007;
constexpr std::uint32_t focusBayerRG8 = 0x01080009;
constexpr std::uint32_t focusBayerRG12 = 0x01100011;
constexpr std::uint32_t focusRgb8 = 0x02180014;

/// Takes and measures pictures of a simulated sensor with shading and defect pixels.
class FocusPictures
{
public:
    /// Returns a small sensor whose centre is sharp at 487.
    static SensorModel sensor();
    static SensorModel lineSensor();
    static SensorModel colorSensor();

    explicit FocusPictures(const SensorModel &model, std::uint32_t pixelFormat = focusMono8);

    RenderSettings settings;
    FocusOptions options;

    /// Measures the picture with the present settings.
    FocusMeasurement measure();

    /// Returns why the picture with the present settings cannot be measured, or says nothing.
    std::string problem();

    /// Measures one picture at each position. The scene moves on.
    std::vector<FocusSample> sweep(double from, double to, double step);

private:
    FocusScene m_scene;
    FocusMeter m_meter;
};
