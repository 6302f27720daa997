#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

// The numbers of all messages are big endian.

using MessageBytes = std::vector<std::uint8_t>;

constexpr std::size_t messageHeaderSize = 8; ///< Bytes before the parameters of a command or an answer.
constexpr std::uint8_t commandKey = 0x42; ///< The first byte of every command.

/// Bits of the second byte of a command.
constexpr std::uint8_t acknowledgeRequired = 0x01;
constexpr std::uint8_t allowBroadcastAcknowledge = 0x10;

inline std::uint16_t read16(const std::uint8_t *data)
{
    return static_cast<std::uint16_t>(data[0] << 8 | data[1]);
}

inline std::uint32_t read32(const std::uint8_t *data)
{
    return static_cast<std::uint32_t>(read16(data)) << 16 | read16(data + 2);
}

/// Appends a number with all its bytes.
template <typename Number>
void appendNumber(MessageBytes &bytes, Number number)
{
    for (std::size_t index = sizeof number; index-- > 0;)
        bytes.push_back(static_cast<std::uint8_t>(number >> 8 * index));
}
