#pragma once

#include "CvxCPP/Node.h"

#include <optional>
#include <string>

/// Returns the value as text, in the form that Device::ReadText() describes. Returns an empty text if there
/// is no value.
std::string nodeText(const CvxCPP::NodeValue &value);

/// Returns the value that the text describes for a node of this type; see Device::WriteText(). Returns
/// nothing if the text is no value of the type. A category and a command have no values.
std::optional<CvxCPP::NodeValue> nodeValueOf(CvxCPP::NodeType type, const std::string &text);
