#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// A camera with many features, for measurements: integers whose limits are registers, floats with a formula,
/// enumerations, booleans, text, commands, and features behind a selector.

constexpr unsigned manyFeatures = 5000;

/// Returns the register description. It has this number of features, without the categories.
std::string describeManyFeatures(unsigned features);

/// Returns the registers of the camera after it was switched on.
std::vector<std::uint8_t> registersOfManyFeatures(unsigned features);
