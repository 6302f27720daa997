#pragma once

#include "sdk/camerahost/NodeDescription.h"

#include <cstdint>
#include <string>

// Lengths in bytes that registers may have.
constexpr std::int64_t maxIntegerLength = 8;
constexpr std::int64_t maxTextLength = 64 << 10;
constexpr std::int64_t maxRegisterLength = 1 << 20; // A message holds several of them as text.

/// Returns true if a register of this kind may have the length.
bool isValidLength(NodeKind kind, std::int64_t length);

/// Returns why the node cannot have a value, as a clause that names the node, or an empty string. Does not
/// check the nodes to which it refers, except that they exist and have a suitable kind.
std::string findProblem(const Description &description, NodeIndex node);
