#pragma once

#include <cstdint>

// The loops over the pixels of a line that decide how fast pictures are rendered. Each of them processes as
// many pixels at once as the processor allows.

/// A part of a line of a sensor; every pointer has a number for each pixel.
struct SignalLine
{
    const std::uint8_t *scene; ///< Square root of the light.
    const float *columnLight; ///< Square root of the electrons for a scene of 1, without lineLight.
    float lineLight;
    const float *response; ///< Relative sensitivity.
    const float *shotNoise; ///< Normal distribution with standard deviation 1.
    const float *darkNoise; ///< The same.
    float darkDeviation; ///< Standard deviation of the dark noise in electrons.
    float darkMean; ///< Electrons.
    const float *darkSignal; ///< Electrons in addition to the mean.
    const float *gain; ///< Units per electron.
    float offset; ///< Units.
};

/// Computes the values of pixels from light, noise, gain and offset.
void computeSignal(const SignalLine &line, int count, float *values);

/// Converts values to a pixel format's numbers.
struct Quantization
{
    float scale;
    float offset; ///< Added after scaling.
    float maxValue; ///< Results are limited to 0 to maxValue.
};
void quantize(const float *values, int count, const Quantization &quantization, std::uint16_t *results);

/// Does the same for at most 8 bits.
void quantizeBytes(const float *values, int count, const Quantization &quantization, std::uint8_t *results);
