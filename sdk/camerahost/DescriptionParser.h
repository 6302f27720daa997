#pragma once

#include "sdk/camerahost/DescriptionText.h"
#include "sdk/camerahost/NodeDescription.h"

#include <string>
#include <variant>

/// Parses the XML of a register description. Leaves out elements without a meaning for us, and nodes without
/// a name. The entries of a structure become nodes of their own, as does a formula inside a register. Returns
/// a problem if the text is not well-formed, is not a register description, or is far too large.
std::variant<Description, DescriptionProblem> parseDescription(const std::string &xml);
