#pragma once

#include "CvxCPP/Node.h"

#include <string>
#include <string_view>
#include <variant>

// Values as the text of a settings file. Nothing here depends on the locale.

/// Returns the value as text: booleans as 1 or 0, floats with "." and as many digits as are needed to read
/// back the same number, registers as hexadecimal digits. Returns an empty text if there is no value.
std::string settingText(const CvxCPP::NodeValue &value);

/// Returns the value that the text describes for a feature of this type, or a sentence for people if it
/// describes none. Accepts what other programs write: a decimal comma, if it cannot separate thousands,
/// integers as "1e3" or "16.0", and booleans of any letter case.
std::variant<CvxCPP::NodeValue, std::string> settingValue(CvxCPP::NodeType type, std::string_view text);

/// Returns true if the values are equal. Floats may differ by as much as cameras lose when they store them in
/// 32 bits, or by `tolerance` if that is more.
bool isSameValue(const CvxCPP::NodeValue &left, const CvxCPP::NodeValue &right, double tolerance = 0);

/// Returns true if the texts describe the same value of a feature whose type is unknown: numbers are compared
/// by their values, with true as 1 and false as 0.
bool isSameText(std::string_view left, std::string_view right);
