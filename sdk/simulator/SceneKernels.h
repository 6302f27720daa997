#pragma once

#include <cstdint>

// The loops over the pixels of a line that decide how fast pictures are rendered. Each of them processes as
// many pixels at once as the processor allows.

/// One line of a sensor; every pointer has a number for each pixel.
struct SignalLine
{
    const std::uint16_t *scene; ///< Square root of the light.
    const float *columnLight; ///< Square root of the electrons for a scene of 1, without lineLight.
    float lineLight;
    const float *response; ///< Relative sensitivity.
    const float *shotNoise; ///< Normal distribution with standard deviation 1.
    const float *darkNoise; ///< The same.
    float darkDeviation; ///< Standard deviation of the dark noise in electrons.
    const float *darkSignal; ///< Electrons.
    const float *gain; ///< Units per electron.
    const float *offset; ///< Units.
};

/// Computes the values of a line from light, noise, gain and offset.
void computeSignal(const SignalLine &line, int count, float *values);

/// Computes values * scale + offset, rounded, and limits them to 0 to maxValue.
void quantize(
    const float *values, int count, float scale, float offset, float maxValue, std::uint16_t *quantized);
