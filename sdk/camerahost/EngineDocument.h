#pragma once

#include "sdk/camerahost/NodeReferences.h"

#include <string>

/// Returns a register description for the engine: only usable nodes, and of them only what is needed to
/// compute values. Numbers, names and bit ranges are written in the form that the engine understands.
/// Booleans, enumerations and commands become integers.
std::string makeEngineDocument(const Description &description, const NodeReferences &references);
