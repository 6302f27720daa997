#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

/// A MAC address as a number, the first byte highest.
using MacAddress = std::uint64_t;

/// Returns the MAC addresses in a text such as "GEV:00-11-22-AA-BB-CC" or "DEV_001122AABBCC". A MAC address
/// is six groups of two hexadecimal digits that are separated by the same ':' or '-', or a word of exactly
/// twelve hexadecimal digits. The addresses 00:00:00:00:00:00 and FF:FF:FF:FF:FF:FF, which stand for an
/// unknown device, are left out.
std::vector<MacAddress> macAddressesIn(std::string_view text);

/// Returns each sequence of twelve hexadecimal digits of the text as if it were a MAC address. All other
/// ASCII characters than letters and digits are ignored. A text "contains" a MAC address that is among them.
std::vector<MacAddress> digitSequencesIn(std::string_view text);
