#pragma once

#include <cstdint>
#include <optional>
#include <vector>

/// The values that an integer feature allows.
struct FactorRange
{
    std::int64_t min = 1;
    std::int64_t max = 1;
    std::int64_t increment = 1;
};

/// What a camera offers to make lines out of encoder pulses. A camera without a factor has the range 1 to 1.
struct RatioLimits
{
    std::vector<int> countsPerPulse = {1}; ///< 1 for FourPhase, 4 for HighResolution; preferred ones first.
    FactorRange multiplier;
    FactorRange encoderDivider;
    FactorRange triggerDivider;
};

/// Factors for which the camera takes countsPerPulse * multiplier / (encoderDivider * triggerDivider) lines
/// per pulse of the encoder.
struct EncoderRatio
{
    int countsPerPulse = 1;
    std::int64_t multiplier = 1;
    std::int64_t encoderDivider = 1;
    std::int64_t triggerDivider = 1;

    double linesPerPulse() const;
};

/// Ratios that differ from the target by less than this share are as good as equal: one line in 10,000.
constexpr double equalRatio = 1e-4;

/// Returns the factors whose ratio is closest to the target, which is greater than 0. Of ratios that are
/// as good as equal, the one with the smallest multiplier is returned, because a camera makes up the times
/// of multiplied pulses. For a given numerator, the best denominator is one of the two allowed neighbours
/// of numerator / target (Hardy and Wright, An Introduction to the Theory of Numbers, chapter X, on best
/// rational approximations), so only the numerators have to be tried.
EncoderRatio bestEncoderRatio(double linesPerPulse, const RatioLimits &limits);
