#pragma once

#include <QChar>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

// Bytes as a person reads and types them.

/// Returns two digits for each byte, separated by spaces: "00 1F A2".
QString hexText(const std::vector<std::uint8_t> &bytes);

/// Returns the bytes of a text with hexadecimal digits. Spaces, line breaks, ",", ";", ":" and "-" separate
/// numbers, which may begin with "0x". A number has an even count of digits, or only one. Returns no value
/// for any other text and for a text without digits.
std::optional<std::vector<std::uint8_t>> parseHexText(const QString &text);

/// Returns the character of an ASCII code; "." if it cannot be printed.
QChar asciiCharacter(std::uint8_t byte);

/// Returns one character for each byte; see asciiCharacter().
QString asciiText(const std::vector<std::uint8_t> &bytes);

/// Returns the codes of the characters; no value if one of them is no ASCII character.
std::optional<std::vector<std::uint8_t>> parseAsciiText(const QString &text);

/// Returns the value of a hexadecimal digit; no value for another character.
std::optional<unsigned> hexDigit(QChar character);

/// Returns the offset with as many digits as the last offset of `size` bytes needs, at least 4.
QString offsetText(std::size_t offset, std::size_t size);
