#pragma once

#include "CvxCPP/Node.h"
#include "sdk/camerahost/NodeAccessRules.h"
#include "sdk/camerahost/NodeEngine.h"
#include "sdk/camerahost/NodeLimits.h"

#include <string>
#include <variant>

/// Reads the states and values of nodes.
class NodeReader
{
public:
    /// All must exist as long as this object.
    NodeReader(const Description &description, NodeEngine &engine, NodeAccessRules &rules)
        : m_description(description), m_engine(engine), m_rules(rules), m_limits(description, engine)
    { }

    CvxCPP::NodeState readState(NodeIndex node);

    /// Reads the value regardless of the access. The node must be of a type that has values.
    AccessResult<CvxCPP::NodeValue> readValue(NodeIndex node);

    /// Returns the limits as readState() reports them.
    Limits readLimits(NodeIndex node) { return m_limits.read(node); }

    /// Returns the longest string, or the length of a register; 0 if it has no limit or cannot be read.
    std::int64_t readMaxLength(NodeIndex node);

    std::vector<std::string> readAvailableEntries(NodeIndex node);

private:
    AccessResult<CvxCPP::NodeValue> readEntry(NodeIndex node);
    AccessResult<CvxCPP::NodeValue> readBoolean(NodeIndex node);
    bool isCommandDone(NodeIndex node);
    void addLimits(NodeIndex node, CvxCPP::NodeState &state);

    const Description &m_description;
    NodeEngine &m_engine;
    NodeAccessRules &m_rules;
    NodeLimits m_limits;
};

/// Returns the number that the command writes to start.
AccessResult<std::int64_t> readCommandValue(
    const Description &description, NodeEngine &engine, const NodeDescription &command);
