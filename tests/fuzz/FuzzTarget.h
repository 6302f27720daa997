#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

/// Processes one input; each fuzz target defines it. A fuzzer calls it with generated inputs, an ordinary
/// test with the seeds. Returns 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

/// Aborts the program if a property does not hold; the fuzzer then reports the input.
void require(bool holds, const char *property);

inline std::string textOf(const std::uint8_t *data, std::size_t size)
{
    return {reinterpret_cast<const char *>(data), size};
}
