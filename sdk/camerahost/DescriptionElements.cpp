#include "sdk/camerahost/DescriptionElements.h"

#include <cstddef>
#include <unordered_map>

namespace {

struct NodeElement
{
    const char *element;
    NodeKind kind;
};

// In the order of NodeKind.
constexpr NodeElement nodeElements[] = {
    {"Category", NodeKind::Category},
    {"Integer", NodeKind::Integer},
    {"IntReg", NodeKind::IntReg},
    {"MaskedIntReg", NodeKind::MaskedIntReg},
    {"IntSwissKnife", NodeKind::IntSwissKnife},
    {"IntConverter", NodeKind::IntConverter},
    {"Float", NodeKind::Float},
    {"FloatReg", NodeKind::FloatReg},
    {"SwissKnife", NodeKind::SwissKnife},
    {"Converter", NodeKind::Converter},
    {"Boolean", NodeKind::Boolean},
    {"Enumeration", NodeKind::Enumeration},
    {"Command", NodeKind::Command},
    {"String", NodeKind::String},
    {"StringReg", NodeKind::StringReg},
    {"Register", NodeKind::Register},
    {"Port", NodeKind::Port},
};

using Role = ReferenceRole;

struct PropertyElement
{
    const char *element;
    PropertyKind kind;
    Role role;
    bool isForEngine;
    const char *attribute;
};

// In the order of PropertyKind.
constexpr PropertyElement propertyElements[] = {
    {"DisplayName", PropertyKind::DisplayName, Role::None, false, ""},
    {"ToolTip", PropertyKind::ToolTip, Role::None, false, ""},
    {"Description", PropertyKind::Description, Role::None, false, ""},
    {"Visibility", PropertyKind::Visibility, Role::None, false, ""},
    {"ImposedVisibility", PropertyKind::ImposedVisibility, Role::None, false, ""},
    {"ImposedAccessMode", PropertyKind::ImposedAccessMode, Role::None, false, ""},
    {"AccessMode", PropertyKind::AccessMode, Role::None, false, ""},
    {"Unit", PropertyKind::Unit, Role::None, false, ""},
    {"Representation", PropertyKind::Representation, Role::None, false, ""},
    {"Streamable", PropertyKind::Streamable, Role::None, false, ""},
    {"PollingTime", PropertyKind::PollingTime, Role::None, false, ""},
    {"Symbolic", PropertyKind::Symbolic, Role::None, false, ""},
    {"Value", PropertyKind::Value, Role::None, true, ""},
    {"pValue", PropertyKind::PValue, Role::Value, true, ""},
    {"pValueCopy", PropertyKind::PValueCopy, Role::Copy, false, ""},
    {"Min", PropertyKind::Minimum, Role::None, true, ""},
    {"pMin", PropertyKind::PMinimum, Role::Limit, true, ""},
    {"Max", PropertyKind::Maximum, Role::None, true, ""},
    {"pMax", PropertyKind::PMaximum, Role::Limit, true, ""},
    {"Inc", PropertyKind::Increment, Role::None, false, ""},
    {"pInc", PropertyKind::PIncrement, Role::Limit, false, ""},
    {"ValueIndexed", PropertyKind::ValueIndexed, Role::None, true, "Index"},
    {"pValueIndexed", PropertyKind::PValueIndexed, Role::Value, true, "Index"},
    {"ValueDefault", PropertyKind::ValueDefault, Role::None, true, ""},
    {"pValueDefault", PropertyKind::PValueDefault, Role::Value, true, ""},
    {"Address", PropertyKind::Address, Role::None, true, ""},
    {"pAddress", PropertyKind::PAddress, Role::Value, true, ""},
    {"pIndex", PropertyKind::PIndex, Role::Value, true, "Offset"},
    {"", PropertyKind::POffset, Role::Value, false, ""}, // Not an element, but an attribute.
    {"Length", PropertyKind::Length, Role::None, true, ""},
    {"pLength", PropertyKind::PLength, Role::Value, true, ""},
    {"pPort", PropertyKind::PPort, Role::Value, true, ""},
    {"Sign", PropertyKind::Sign, Role::None, true, ""},
    {"Endianess", PropertyKind::Endianness, Role::None, true, ""},
    {"LSB", PropertyKind::LowestBit, Role::None, false, ""},
    {"MSB", PropertyKind::HighestBit, Role::None, false, ""},
    {"Bit", PropertyKind::Bit, Role::None, false, ""},
    {"Formula", PropertyKind::Formula, Role::None, true, ""},
    {"FormulaTo", PropertyKind::FormulaTo, Role::None, true, ""},
    {"FormulaFrom", PropertyKind::FormulaFrom, Role::None, true, ""},
    {"pVariable", PropertyKind::PVariable, Role::Value, true, "Name"},
    {"Constant", PropertyKind::Constant, Role::None, true, "Name"},
    {"Expression", PropertyKind::Expression, Role::None, true, "Name"},
    {"Slope", PropertyKind::Slope, Role::None, true, ""},
    {"IsLinear", PropertyKind::IsLinear, Role::None, true, ""},
    {"OnValue", PropertyKind::OnValue, Role::None, false, ""},
    {"OffValue", PropertyKind::OffValue, Role::None, false, ""},
    {"CommandValue", PropertyKind::CommandValue, Role::None, false, ""},
    {"pCommandValue", PropertyKind::PCommandValue, Role::Value, false, ""},
    {"pIsImplemented", PropertyKind::PIsImplemented, Role::State, false, ""},
    {"pIsAvailable", PropertyKind::PIsAvailable, Role::State, false, ""},
    {"pIsLocked", PropertyKind::PIsLocked, Role::State, false, ""},
    {"pSelected", PropertyKind::PSelected, Role::Selected, false, ""},
    {"pFeature", PropertyKind::PFeature, Role::Feature, false, ""},
    {"pInvalidator", PropertyKind::PInvalidator, Role::Invalidator, false, ""},
    {"ChunkID", PropertyKind::ChunkId, Role::None, false, ""},
    {"pChunkID", PropertyKind::PChunkId, Role::Value, false, ""},
    {"EventID", PropertyKind::EventId, Role::None, false, ""},
};

template <typename Element, std::size_t Count>
constexpr bool isInOrder(const Element (&elements)[Count])
{
    for (std::size_t i = 0; i < Count; ++i) {
        if (static_cast<std::size_t>(elements[i].kind) != i)
            return false;
    }
    return true;
}
static_assert(isInOrder(nodeElements) && isInOrder(propertyElements));

const PropertyElement &propertyElement(PropertyKind kind)
{
    return propertyElements[static_cast<std::size_t>(kind)];
}

} // namespace

std::optional<NodeKind> nodeKindOf(std::string_view element)
{
    for (const NodeElement &known : nodeElements) {
        if (element == known.element)
            return known.kind;
    }
    return std::nullopt;
}

std::optional<PropertyKind> propertyKindOf(std::string_view element)
{
    static const auto kinds = [] {
        std::unordered_map<std::string_view, PropertyKind> byElement;
        for (const PropertyElement &property : propertyElements)
            byElement.emplace(property.element, property.kind);
        return byElement;
    }();
    const auto found = kinds.find(element);
    if (found == kinds.end())
        return std::nullopt;
    return found->second;
}

const char *elementOf(NodeKind kind)
{
    return nodeElements[static_cast<std::size_t>(kind)].element;
}

const char *elementOf(PropertyKind kind)
{
    return propertyElement(kind).element;
}

const char *attributeNameOf(PropertyKind kind)
{
    return propertyElement(kind).attribute;
}

ReferenceRole roleOf(PropertyKind kind)
{
    return propertyElement(kind).role;
}

bool isForEngine(PropertyKind kind)
{
    return propertyElement(kind).isForEngine;
}
