#pragma once

#include <string>
#include <string_view>

/// Returns the bytes as valid UTF-8: every byte that is not part of a well-formed sequence is replaced by
/// U+FFFD.
std::string toValidUtf8(std::string_view bytes);

/// Returns the bytes as valid UTF-8. Control characters are replaced by blanks.
std::string toPrintable(std::string_view bytes);

/// Returns the bytes as valid UTF-8 on one line. Control characters are replaced by escapes such as "\n" or
/// "\x1b".
std::string toLine(std::string_view bytes);
