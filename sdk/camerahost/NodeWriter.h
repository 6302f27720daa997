#pragma once

#include "CvxCPP/Node.h"
#include "sdk/camerahost/NodeReader.h"
#include "sdk/protocol/DeviceMessages.h"

#include <optional>

/// Writes values after it has checked them: access, type, range, increment, entry and length.
class NodeWriter
{
public:
    /// All must exist as long as this object.
    NodeWriter(const Description &description, NodeEngine &engine, NodeAccessRules &rules, NodeReader &reader)
        : m_description(description), m_engine(engine), m_rules(rules), m_reader(reader)
    { }

    /// Writes a value, or executes a command if there is no value. Returns the failure.
    std::optional<RequestFailedReply> write(NodeIndex node, const CvxCPP::NodeValue &value);

    // These functions check nothing.
    std::optional<AccessProblem> writeNumber(NodeIndex node, Number value);
    std::optional<AccessProblem> execute(NodeIndex command);

private:
    using Failure = std::optional<RequestFailedReply>;

    Failure checkAccess(NodeIndex node);
    Failure writeChecked(NodeIndex node, const CvxCPP::NodeValue &value);
    Failure writeInteger(NodeIndex node, std::int64_t value);
    Failure writeFloat(NodeIndex node, double value);
    Failure writeEntry(NodeIndex node, const std::string &name);
    Failure writeText(NodeIndex node, const std::string &value);
    Failure writeBytes(NodeIndex node, const std::vector<std::uint8_t> &value);
    Failure finish(NodeIndex node, const std::optional<AccessProblem> &problem);

    const Description &m_description;
    NodeEngine &m_engine;
    NodeAccessRules &m_rules;
    NodeReader &m_reader;
};
