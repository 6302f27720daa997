#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

/// The features of a camera, which GenICam calls nodes: plain records that Device.h returns. All strings are
/// UTF-8. Names and categories are those of the camera's register description, usually the names of the
/// GenICam Standard Features Naming Convention (SFNC).
namespace CvxCPP {

enum class NodeType : std::uint8_t
{
    Category, ///< Only groups other nodes; has no value.
    Integer,
    Float,
    Boolean,
    Enumeration,
    String,
    Command, ///< Has no value; is executed.
    Register ///< A sequence of bytes.
};

/// For whom a node is made. A program that shows one level also shows the levels before it.
enum class NodeVisibility : std::uint8_t
{
    Beginner,
    Expert,
    Guru,
    Invisible
};

/// How the camera wants an integer or a float to be shown.
enum class NodeRepresentation : std::uint8_t
{
    Undefined,
    Linear, ///< A slider.
    Logarithmic, ///< A slider whose steps are relative to the value.
    Boolean,
    PureNumber,
    HexNumber,
    IPv4Address, ///< The highest byte comes first.
    MacAddress ///< Six bytes; the highest byte comes first.
};

/// One entry of an enumeration.
struct EnumerationEntry
{
    std::string name; ///< The value of the enumeration; see NodeValue.
    std::string displayName;
    std::int64_t value = 0; ///< The number behind the name.
};

/// The properties of a node that do not change while the device is open.
struct NodeInfo
{
    std::string name; ///< Identifies the node; case-sensitive.
    std::string displayName; ///< The name if the description contains no other text.
    std::string category; ///< Name of the category that contains the node; empty for the root category.
    std::string toolTip; ///< May be empty.
    std::string description; ///< May be empty.
    std::string unit; ///< Empty if the node has no unit.
    NodeType type = NodeType::Category;
    NodeVisibility visibility = NodeVisibility::Beginner;
    NodeRepresentation representation = NodeRepresentation::Undefined;
    bool isStreamable = false; ///< True if the value belongs into a settings file.
    std::uint32_t pollingTime = 0; ///< Milliseconds after which the value may have changed; 0 if unknown.
    std::vector<EnumerationEntry>
        entries; ///< All entries of an enumeration, in the order of the description.
    std::vector<std::string> selectors; ///< Names of the nodes that select which value this node has.
    std::vector<std::string> selected; ///< Names of the nodes that this node selects.
};

/// What a node allows at present, apart from locks; see LockReason.
enum class NodeAccess : std::uint8_t
{
    NotImplemented, ///< The camera does not have the node.
    NotAvailable, ///< The node has no value at present, for example in the current mode.
    ReadOnly,
    WriteOnly,
    ReadWrite
};

/// Why a node cannot be written at present.
enum class LockReason : std::uint8_t
{
    None, ///< The node can be written.
    NotImplemented,
    NotAvailable, ///< `lockingNode` is the node on which this depends, usually a mode or a selector.
    ReadOnlyNode, ///< The camera only reports this value.
    Watching, ///< The device was opened with CvxAccessWatch.
    StreamRunning, ///< The stream has to be stopped first.
    LockedByNode ///< `lockingNode` locks the node, for example an automatic function.
};

/// The value of a node: an integer, a float, a boolean, the name of an enumeration's entry or a string, or
/// the bytes of a register. A category, a command and a node that cannot be read have no value.
using NodeValue
    = std::variant<std::monostate, std::int64_t, double, bool, std::string, std::vector<std::uint8_t>>;

/// The properties of a node that change.
struct NodeState
{
    std::string name;
    NodeAccess access = NodeAccess::NotAvailable;
    LockReason lockReason = LockReason::None;
    std::string lockingNode; ///< Name of the node that is responsible; empty if unknown.
    NodeValue value;
    NodeValue minimum; ///< Has the type of the value; no value if there is no limit.
    NodeValue maximum;
    NodeValue increment; ///< Difference between two neighbouring values; no value if every value is allowed.
    std::int64_t maxLength = 0; ///< Longest string in characters, or length of a register in bytes; else 0.
    std::vector<std::string> availableEntries; ///< Names of the entries that an enumeration allows now.
    bool isCommandDone = true; ///< False while a command is being executed.
    std::string problem; ///< Why the value or a limit cannot be read; empty if everything was read.
};

} // namespace CvxCPP
