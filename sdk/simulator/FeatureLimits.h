#pragma once

#include "sdk/simulator/RegisterBank.h"

#include <cstdint>

// The limits of features, some of which depend on the values of others. The formulas in the register
// description calculate the same limits.

struct IntegerLimits
{
    std::int64_t min;
    std::int64_t max;
    std::int64_t increment;

    bool contains(std::int64_t value) const
    {
        // Without limits, the difference of two integers may only fit into an unsigned one.
        const std::uint64_t distance = static_cast<std::uint64_t>(value) - static_cast<std::uint64_t>(min);
        return value >= min && value <= max && distance % static_cast<std::uint64_t>(increment) == 0;
    }
};

struct RealLimits
{
    double min;
    double max;

    bool contains(double value) const { return value >= min && value <= max; } ///< Also false for NaN.
};

constexpr int widthIncrement = 4; ///< Lines of all pixel formats are then whole bytes.
constexpr int minWidth = 16;
constexpr int maxLineScanHeight = 16384;
constexpr double maxFrameRate = 100'000; ///< Hz.
constexpr double maxLineRate = 200'000; ///< Hz.
constexpr double maxExposureTime = 10'000'000; ///< Microseconds.

/// Returns the largest picture at the present binning.
std::int64_t widthMax(const RegisterBank &bank);
std::int64_t heightMax(const RegisterBank &bank);

/// Returns true if the camera is a line scan camera.
bool isLineScan(const RegisterBank &bank);

/// Returns the limits of an integer register, or of a float register.
IntegerLimits integerLimits(const RegisterBank &bank, RegisterId id);
RealLimits realLimits(const RegisterBank &bank, RegisterId id);

/// Returns true if the sensor offers the pixel format with this PFNC code.
bool isPixelFormatOffered(const RegisterBank &bank, std::int64_t code);
