#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// The element of a register description that a node comes from.
enum class NodeKind : std::uint8_t
{
    Category,
    Integer,
    IntReg,
    MaskedIntReg,
    IntSwissKnife,
    IntConverter,
    Float,
    FloatReg,
    SwissKnife,
    Converter,
    Boolean,
    Enumeration,
    Command,
    String,
    StringReg,
    Register,
    Port
};

/// The children of these elements that have a meaning for us. "P" stands for a reference to a node.
enum class PropertyKind : std::uint8_t
{
    DisplayName,
    ToolTip,
    Description,
    Visibility,
    ImposedVisibility,
    ImposedAccessMode,
    AccessMode,
    Unit,
    Representation,
    Streamable,
    PollingTime,
    Symbolic,
    Value,
    PValue,
    PValueCopy,
    Minimum,
    PMinimum,
    Maximum,
    PMaximum,
    Increment,
    PIncrement,
    ValueIndexed,
    PValueIndexed,
    ValueDefault,
    PValueDefault,
    Address,
    PAddress,
    PIndex,
    POffset, // Stands after the PIndex whose attribute it is.
    Length,
    PLength,
    PPort,
    Sign,
    Endianness,
    LowestBit,
    HighestBit,
    Bit,
    Formula,
    FormulaTo,
    FormulaFrom,
    PVariable,
    Constant,
    Expression,
    Slope,
    IsLinear,
    OnValue,
    OffValue,
    CommandValue,
    PCommandValue,
    PIsImplemented,
    PIsAvailable,
    PIsLocked,
    PSelected,
    PFeature,
    PInvalidator,
    ChunkId,
    PChunkId,
    EventId
};

struct NodeProperty
{
    PropertyKind kind;
    std::string text; ///< Without blanks at its ends.
    std::string attribute; ///< The name of a variable, or the offset or the index of a reference.
};

/// Properties in the order of the description.
class PropertyList
{
public:
    void add(NodeProperty property) { m_properties.push_back(std::move(property)); }
    const NodeProperty *find(PropertyKind kind) const;
    bool has(PropertyKind kind) const { return find(kind) != nullptr; }
    /// Returns the text of the property, or an empty string.
    const std::string &text(PropertyKind kind) const;

    std::vector<NodeProperty>::const_iterator begin() const { return m_properties.begin(); }
    std::vector<NodeProperty>::const_iterator end() const { return m_properties.end(); }

private:
    std::vector<NodeProperty> m_properties;
};

/// One entry of an enumeration.
struct EntryDescription
{
    std::string name;
    PropertyList properties;

    std::int64_t value() const;
};

struct NodeDescription
{
    NodeKind kind;
    std::string name;
    PropertyList properties;
    std::vector<EntryDescription> entries;
};

/// Returns the number that stands for true, or for false, in the register of a boolean.
std::int64_t onValue(const NodeDescription &boolean);
std::int64_t offValue(const NodeDescription &boolean);

using NodeIndex = std::uint32_t;

/// The nodes of a register description: what the camera's maker has written, without any value of the camera.
class Description
{
public:
    /// Adds a node, unless there is one with this name.
    void add(NodeDescription node);

    const std::vector<NodeDescription> &nodes() const { return m_nodes; }
    const NodeDescription &operator[](NodeIndex index) const { return m_nodes[index]; }
    NodeIndex size() const { return static_cast<NodeIndex>(m_nodes.size()); }
    std::optional<NodeIndex> find(const std::string &name) const;

private:
    std::vector<NodeDescription> m_nodes;
    std::unordered_map<std::string, NodeIndex> m_indices;
};

bool isRegister(NodeKind kind); ///< The value is in registers of a port.
bool isInteger(NodeKind kind); ///< The value is an integer, including booleans, enumerations and commands.
bool isFloat(NodeKind kind);
bool isText(NodeKind kind);
bool isFormula(NodeKind kind); ///< The value is computed, with or without a way back.

/// Parses an integer as descriptions write it, decimal or with "0x". Leading zeros have no meaning. Unsigned
/// 64-bit numbers above the range keep their bits.
std::optional<std::int64_t> parseInteger(std::string_view text);
std::optional<double> parseFloat(std::string_view text);
