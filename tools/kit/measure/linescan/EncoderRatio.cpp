#include "tools/kit/measure/linescan/EncoderRatio.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

/// More multipliers or dividers than these are not tried; the best of them has an error far below 0.01 %.
constexpr std::int64_t maxMultipliers = 65536;
constexpr std::int64_t maxTriggerDividers = 64;

struct BestRatio
{
    double target;
    EncoderRatio ratio;
    double error = std::numeric_limits<double>::infinity();

    void offer(const EncoderRatio &candidate)
    {
        const double candidateError = std::abs(candidate.linesPerPulse() / target - 1);
        if (candidateError >= error)
            return;
        ratio = candidate;
        error = candidateError;
    }
};

/// Returns the largest allowed value that is not above the wanted one, or the smallest allowed one.
std::int64_t allowedBelow(const FactorRange &range, double wanted)
{
    const double limited = std::clamp(wanted, static_cast<double>(range.min), static_cast<double>(range.max));
    const auto steps = static_cast<std::int64_t>(
        (limited - static_cast<double>(range.min)) / static_cast<double>(range.increment));
    return range.min + steps * range.increment;
}

/// Offers the two dividers next to the best one.
void offerDividers(BestRatio &best, EncoderRatio candidate, const RatioLimits &limits)
{
    const double numerator = static_cast<double>(candidate.multiplier) * candidate.countsPerPulse;
    const double divider = numerator / best.target / static_cast<double>(candidate.triggerDivider);
    candidate.encoderDivider = allowedBelow(limits.encoderDivider, divider);
    best.offer(candidate);
    candidate.encoderDivider += limits.encoderDivider.increment;
    if (candidate.encoderDivider <= limits.encoderDivider.max)
        best.offer(candidate);
}

/// Offers the divider of the trigger with the one of the encoder, which does most of the work.
void offerTriggerDividers(BestRatio &best, EncoderRatio candidate, const RatioLimits &limits)
{
    const FactorRange &range = limits.triggerDivider;
    const double numerator = static_cast<double>(candidate.multiplier) * candidate.countsPerPulse;
    const double smallest = numerator / best.target / static_cast<double>(limits.encoderDivider.max);
    candidate.triggerDivider = allowedBelow(range, std::floor(smallest));
    for (std::int64_t i = 0; i < maxTriggerDividers && candidate.triggerDivider <= range.max; ++i) {
        offerDividers(best, candidate, limits);
        if (best.error <= equalRatio)
            return;
        candidate.triggerDivider += range.increment;
    }
}

} // namespace

double EncoderRatio::linesPerPulse() const
{
    return static_cast<double>(countsPerPulse) * static_cast<double>(multiplier)
        / (static_cast<double>(encoderDivider) * static_cast<double>(triggerDivider));
}

EncoderRatio bestEncoderRatio(double linesPerPulse, const RatioLimits &limits)
{
    BestRatio best{linesPerPulse, {}};
    const FactorRange &range = limits.multiplier;
    const std::int64_t count = std::min((range.max - range.min) / range.increment + 1, maxMultipliers);
    for (std::int64_t i = 0; i < count; ++i) {
        for (const int counts : limits.countsPerPulse) {
            offerTriggerDividers(best, {counts, range.min + i * range.increment, 1, 1}, limits);
            if (best.error <= equalRatio)
                return best.ratio;
        }
    }
    return best.ratio;
}
