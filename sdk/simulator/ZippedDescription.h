#pragma once

#include "sdk/simulator/DescriptionText.h"

#include <string_view>

/// The kind of cameras whose description is compressed, as it is in many real cameras.
const DescriptionKind zippedKind{false, false, 4, false};

/// The compressed description of these cameras, which the build makes and compiles in.
extern const std::string_view zippedDescription;
