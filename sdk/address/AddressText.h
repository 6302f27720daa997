#pragma once

#include <cstdint>
#include <optional>
#include <string>

/// An address as a person writes it, for example "192.168.1.7" or "192.168.1.7/24".
struct WrittenAddress
{
    std::uint32_t address = 0; ///< In the byte order of this machine.
    std::optional<unsigned> prefix; ///< Bits of the subnet, 0 to 32.
};

/// Returns nothing if the text is not four decimal numbers up to 255 with dots between them.
std::optional<std::uint32_t> parseIpv4(const std::string &text);

/// Returns nothing if the text is not an address with or without a prefix.
std::optional<WrittenAddress> parseWrittenAddress(const std::string &text);

/// Returns the subnet mask with this number of bits, at most 32.
std::uint32_t maskOfPrefix(unsigned prefix);

/// Returns the number of bits of a subnet mask. Returns nothing if the bits are not contiguous.
std::optional<unsigned> prefixOfMask(std::uint32_t mask);

/// Returns the address with its subnet, for example "192.168.1.7/24". A mask that is not contiguous is
/// written with dots.
std::string addressText(std::uint32_t address, std::uint32_t mask);
