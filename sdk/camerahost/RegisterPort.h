#pragma once

#include "sdk/protocol/Problem.h"

#include <cstddef>
#include <cstdint>
#include <optional>

/// The registers of a camera.
class RegisterPort
{
public:
    virtual ~RegisterPort() = default;

    /// Reads or writes `size` bytes, or returns the problem. An access that transfers fewer bytes is a
    /// problem.
    virtual std::optional<Problem> read(std::uint64_t address, void *data, std::size_t size) = 0;
    virtual std::optional<Problem> write(std::uint64_t address, const void *data, std::size_t size) = 0;
};
