#pragma once

#include "sdk/simulator/RegisterBank.h"

#include <array>
#include <cstdint>

/// The mean values of a picture; 1 is the largest value of the pixel format.
struct Brightness
{
    double mean = 0;
    std::array<double, 3> colors{}; ///< Red, green, blue; 0 for pictures without colours.
};

/// Measures a picture that was taken with these settings.
Brightness measureBrightness(const RegisterBank &bank, const std::uint8_t *picture);

/// Returns true if ExposureAuto, GainAuto or BalanceWhiteAuto is not Off.
bool isAnyAutomaticOn(const RegisterBank &bank);

/// Adjusts exposure time, gain and balance ratios as far as they are automatic. An automatic that shall act
/// once ends when it has nothing more to change.
void adjustAutomatics(RegisterBank &bank, const Brightness &brightness);
