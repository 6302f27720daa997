#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

/// Processes one input and returns 0. Each fuzz target defines this function. A fuzzer calls the function
/// with generated inputs, an ordinary test calls it with the seeds.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

/// Aborts the program if a property does not hold, so that the fuzzer reports the input.
void require(bool holds, const char *property);

inline std::string textOf(const std::uint8_t *data, std::size_t size)
{
    return {reinterpret_cast<const char *>(data), size};
}
