#pragma once

#include "sdk/camerahost/NodeLimits.h"

#include <cstdint>
#include <optional>
#include <string>

// These functions return why a value is not allowed, as the rest of a sentence that starts with "…: ", or
// nothing.

std::optional<std::string> checkInteger(std::int64_t value, const Limits &limits);

/// Also moves a value to a limit if it deviates from there by no more than the precision of a float of 32
/// bits, and tolerates the same deviation from an increment, because many cameras store such floats.
std::optional<std::string> checkFloat(double &value, const Limits &limits);

/// Returns the shortest text that stands for the number.
std::string numberText(double number);
