#include "sdk/simulator/LineSignal.h"

#include "sdk/simulator/EnumerationValues.h"

#include <cmath>

using Id = RegisterId;

namespace {

constexpr double nanosecondsPerSecond = 1e9; // Nanoseconds.

} // namespace

bool LineSignal::isHigh(std::int64_t now) const
{
    const double periods = static_cast<double>(now) * frequency / nanosecondsPerSecond;
    return frequency > 0 && periods - std::floor(periods) < 0.5;
}

std::int64_t LineSignal::edgesBetween(std::int64_t from, std::int64_t to) const
{
    const auto edgesUntil = [this](std::int64_t time) {
        return static_cast<std::int64_t>(
            std::floor(static_cast<double>(time) * frequency / nanosecondsPerSecond));
    };
    return edgesUntil(to) - edgesUntil(from);
}

std::int64_t LineSignal::edgeTime(std::int64_t activation, std::int64_t from, std::int64_t count) const
{
    const double edgeFrequency = activation == anyEdge ? 2 * frequency : frequency;
    const double phase = activation == fallingEdge ? 0.5 : 0; // In periods.
    const double period = nanosecondsPerSecond / edgeFrequency;
    const double first = std::ceil(static_cast<double>(from) / period - phase);
    const double time = (first + static_cast<double>(count - 1) + phase) * period;
    return std::max(from, static_cast<std::int64_t>(time));
}

double encoderFrequency(const RegisterBank &bank)
{
    const bool isConnected = bank.isOn(Id::EncoderSourceA) && bank.isOn(Id::EncoderSourceB);
    // HighResolution counts all four edges of the two signals.
    const double edges = bank.isOn(Id::EncoderMode) ? 4 : 1;
    return isConnected
        ? bank.real(Id::EncoderSpeed) * edges / static_cast<double>(bank.integer(Id::EncoderDivider))
        : 0;
}

double triggersPerPulse(const RegisterBank &bank, std::size_t trigger)
{
    return static_cast<double>(bank.integer(Id::TriggerMultiplier, trigger))
        / static_cast<double>(bank.integer(Id::TriggerDivider, trigger));
}
