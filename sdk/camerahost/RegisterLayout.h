#pragma once

#include "sdk/camerahost/NodeDescription.h"

#include <cstdint>
#include <optional>

/// The bits of a number that a MaskedIntReg consists of, both inclusive. Bit 0 is the least significant one.
struct BitRange
{
    std::uint32_t lowest = 0;
    std::uint32_t highest = 63;
};

bool isBigEndian(const NodeDescription &node);
bool isSigned(const NodeDescription &node);

/// Returns the length in bytes if the description states it, instead of a node that contains it.
std::optional<std::int64_t> fixedLength(const NodeDescription &node);

/// Returns the bits of an integer register of `length` bytes, or nothing if they are outside the register.
/// In a big-endian register, the description counts the bits from the most significant one.
std::optional<BitRange> bitRange(const NodeDescription &node, std::uint32_t length);
