#pragma once

#include <string>
#include <string_view>

/// Returns the bytes with every malformed UTF-8 sequence replaced by U+FFFD.
std::string toValidUtf8(std::string_view bytes);

/// Returns the bytes as valid UTF-8 on one line: control characters become escapes such as "\n" or "\x1b".
std::string toLine(std::string_view bytes);
