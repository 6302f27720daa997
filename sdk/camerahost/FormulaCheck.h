#pragma once

#include "sdk/camerahost/NodeDescription.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <variant>

/// Returns why a formula of the node can never be computed, for example because of an error of syntax, or
/// nothing. The engine itself would compute 0 without an error.
std::optional<std::string> formulaProblem(const NodeDescription &node);

/// Returns true if the formula fails for some values of its variables.
bool canDivide(const NodeDescription &node);

using Number = std::variant<std::int64_t, double>;

/// Returns the number behind a reference, or nothing if it cannot be read.
using NumberReader = std::function<std::optional<Number>(const std::string &node)>;

/// Returns why the formula that computes the value of the node fails at present, or nothing.
std::optional<std::string> currentFormulaProblem(const NodeDescription &node, const NumberReader &readNumber);
