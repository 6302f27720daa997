#pragma once

#include <string>
#include <string_view>
#include <variant>

/// Why a register description cannot be used, as a clause for people, without a full stop.
struct DescriptionProblem
{
    std::string text;
};

/// Returns the text without blanks at its ends.
std::string_view withoutBlanks(std::string_view text);

/// Returns the XML of a register description: removes byte order mark and blanks at the beginning, and
/// everything after the end of the root element. Returns a problem if the end is missing, because a camera
/// would lack features without notice.
std::variant<std::string, DescriptionProblem> tidyDescription(std::string bytes);
