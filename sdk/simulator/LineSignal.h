#pragma once

#include "sdk/simulator/RegisterBank.h"

#include <cstddef>
#include <cstdint>

/// A simulated square wave at an input of the camera. All times are nanoseconds of the monotonic clock.
struct LineSignal
{
    double frequency = 0; ///< Hertz; 0 for an input without signal.

    bool isHigh(std::int64_t now) const;

    /// Returns the number of rising edges after `from`, up to and including `to`.
    std::int64_t edgesBetween(std::int64_t from, std::int64_t to) const;

    /// Returns the time of the count-th edge at or after `from`. The signal must have a frequency.
    /// @param activation One of the values of TriggerActivation.
    std::int64_t edgeTime(std::int64_t activation, std::int64_t from, std::int64_t count) const;
};

/// Returns the pulses per second that the encoder passes on: none unless both of its sources are connected.
double encoderFrequency(const RegisterBank &bank);

/// Returns the triggers for each pulse of the trigger's source.
/// @param trigger One of the values of TriggerSelector.
double triggersPerPulse(const RegisterBank &bank, std::size_t trigger);
