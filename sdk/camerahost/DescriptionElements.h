#pragma once

#include "sdk/camerahost/NodeDescription.h"

#include <optional>
#include <string_view>

/// What a node needs another node for.
enum class ReferenceRole : std::uint8_t
{
    None, ///< The property is not a reference.
    Value, ///< Without the other node, the node has no value.
    Limit,
    State, ///< Whether the node is implemented, available or locked.
    Copy, ///< The value is written to the other node too.
    Selected,
    Feature, ///< The node is in the category.
    Invalidator
};

// The names that register descriptions use, and what they mean.

std::optional<NodeKind> nodeKindOf(std::string_view element);
std::optional<PropertyKind> propertyKindOf(std::string_view element);
const char *elementOf(NodeKind kind);
const char *elementOf(PropertyKind kind);

/// Returns the name of the attribute that the property may have, or an empty string.
const char *attributeNameOf(PropertyKind kind);
ReferenceRole roleOf(PropertyKind kind);

/// Returns true if the engine needs the property to compute values.
bool isForEngine(PropertyKind kind);
