#pragma once

#include <array>
#include <string_view>

/// The files in description/, which the build compiles in. Each of them is one <Group> element. Instructions
/// in them stand alone on their line:
///
///     <?if NAME?> … <?end?>   keeps the lines between them only if the condition is met
///     <?NAME?>                is replaced by elements that are generated
extern const std::array<std::string_view, 6> descriptionFragments;
