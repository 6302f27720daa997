#pragma once

#include "sdk/simulator/RegisterBank.h"

#include <cstdint>

constexpr double idleTemperature = 32; ///< Degrees Celsius of the sensor of a camera that has been idle.
constexpr double runningTemperature = 51; ///< The sensor of a camera that has been running for long.

/// Returns the temperature of the sensor. It approaches the idle or the running temperature exponentially.
/// @param now Nanoseconds of the monotonic clock.
double sensorTemperature(const RegisterBank &bank, std::int64_t now);

/// Starts or stops the camera's acquisition; the temperature starts to change from its present value.
void setAcquisitionActive(RegisterBank &bank, bool isActive, std::int64_t now);
