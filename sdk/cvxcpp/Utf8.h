#pragma once

#include <string>
#include <string_view>

/// The text with every malformed byte sequence replaced by U+FFFD.
std::string toValidUtf8(std::string_view bytes);

/// The text on one line: control characters become escapes such as "\n" or "\x1b", the rest is valid UTF-8.
std::string toLine(std::string_view bytes);
