#pragma once

#include "sdk/camerahost/ArvRegisterDevice.h"
#include "sdk/camerahost/FormulaCheck.h"
#include "sdk/camerahost/NodeReferences.h"

#include <future>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

/// Why a value cannot be read or written, as a clause for people.
struct AccessProblem
{
    std::string text;

    std::string sentence() const; ///< Returns the text with a capital letter and a full stop.
};

template <typename Value>
using AccessResult = std::variant<Value, AccessProblem>;

/// Computes the values of nodes from the registers of the camera. Does not consider limits, availability and
/// locks. A node that NodeReferences finds unusable has no value here.
class NodeEngine
{
public:
    /// All three must exist as long as the engine. Starts a thread that prepares the engine for the first
    /// access, which waits for it.
    NodeEngine(RegisterPort &port, const Description &description, const NodeReferences &references);

    /// Reads an integer or a float, depending on the kind of the node.
    AccessResult<Number> readNumber(NodeIndex node);
    AccessResult<std::int64_t> readInteger(NodeIndex node); ///< Rounds a float.
    AccessResult<std::string> readText(NodeIndex node);
    AccessResult<std::vector<std::uint8_t>> readBytes(NodeIndex node);

    std::optional<AccessProblem> writeNumber(NodeIndex node, Number value);
    std::optional<AccessProblem> writeText(NodeIndex node, const std::string &value);
    std::optional<AccessProblem> writeBytes(NodeIndex node, const std::vector<std::uint8_t> &value);

    /// Returns the node, the node that has its value, the node that has the value of that one and so on. An
    /// index may decide at present which node has the value.
    std::vector<NodeIndex> valueChain(NodeIndex node);

    // Properties of a register.
    AccessResult<std::uint64_t> readAddress(NodeIndex node);
    AccessResult<std::int64_t> readLength(NodeIndex node);

    // The limits of a converter: those of the node behind it, converted.
    AccessResult<Number> readMinimum(NodeIndex node);
    AccessResult<Number> readMaximum(NodeIndex node);

private:
    using EnginePointer = std::unique_ptr<ArvGc, GObjectDeleter>;

    template <typename Value, typename Call>
    AccessResult<Value> call(NodeIndex node, const Call &call);
    template <typename Call>
    std::optional<AccessProblem> callToWrite(NodeIndex node, const Call &write);
    AccessResult<Number> readUnchecked(NodeIndex node);
    std::optional<NodeIndex> valueTarget(NodeIndex node);
    std::optional<AccessProblem> checkLengths(NodeIndex node);
    std::optional<AccessProblem> checkFormulas(NodeIndex node);
    ArvGc *engine();
    ArvGcNode *find(NodeIndex node);

    const Description &m_description;
    const NodeReferences &m_references;
    std::optional<Problem> m_lastProblem; // Problem that occurred during the current call.
    std::unique_ptr<ArvRegisterDevice, GObjectDeleter> m_device;
    EnginePointer m_engine; // Null until the first access, or if libaravis cannot parse the document.
    std::future<EnginePointer> m_parsedEngine; // Taken over by the first access.
    std::vector<ArvGcNode *> m_nodes; // Null until the node is used for the first time.
};
