#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

/// Takes one input; each target defines it. The fuzzer calls it with what it makes up, an ordinary test with
/// the kept cases. Returns 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

/// Ends the program, as a finding, when a promise is broken.
void require(bool kept, const char *promise);

/// Tells the fuzzer that the input did something, in code that is not instrumented, such as a library's
/// parser.
void noteFeature(std::size_t feature);

inline std::string textOf(const std::uint8_t *data, std::size_t size)
{
    return {reinterpret_cast<const char *>(data), size};
}
