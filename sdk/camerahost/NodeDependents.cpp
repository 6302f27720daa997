#include "sdk/camerahost/NodeDependents.h"

#include <algorithm>
#include <array>

namespace {

// What these commands change, the references of the description tell. They may be executed often.
constexpr std::array<const char *, 14> commandsOfKnownEffect{"AcquisitionStart", "AcquisitionStop",
    "AcquisitionAbort", "AcquisitionArm", "TriggerSoftware", "SoftwareSignalPulse", "TimestampLatch",
    "TimestampReset", "TimestampControlLatch", "UserSetSave", "DeviceFeaturePersistenceStart",
    "DeviceFeaturePersistenceEnd", "DeviceRegistersStreamingStart", "DeviceRegistersStreamingEnd"};

bool hasUnknownEffect(const NodeDescription &node)
{
    return node.kind == NodeKind::Command
        && std::find(commandsOfKnownEffect.begin(), commandsOfKnownEffect.end(), node.name)
        == commandsOfKnownEffect.end();
}

/// Returns true if the node that has the reference has to be read again after a change of its target.
bool isEvaluated(ReferenceRole role)
{
    return role == ReferenceRole::Value || role == ReferenceRole::Limit || role == ReferenceRole::State
        || role == ReferenceRole::Invalidator;
}

} // namespace

NodeDependents::NodeDependents(
    const Description &description, const NodeReferences &references, const NodeList &list)
    : m_description(description), m_references(references), m_list(list), m_referrers(description.size())
{
    for (NodeIndex node = 0; node < description.size(); ++node) {
        for (const NodeReferences::Reference &reference : references.of(node)) {
            const bool isPort = description[reference.target].kind == NodeKind::Port;
            if (isEvaluated(reference.role) && !isPort)
                m_referrers[reference.target].push_back(node);
        }
    }
}

std::vector<std::string> NodeDependents::of(NodeIndex node) const
{
    std::vector<bool> isReached(m_description.size(), false);
    std::vector<NodeIndex> reached;
    addValueChain(node, reached, isReached);
    for (std::size_t i = 0; i < reached.size(); ++i) {
        for (const NodeIndex referrer : m_referrers[reached[i]]) {
            if (!isReached[referrer]) {
                isReached[referrer] = true;
                reached.push_back(referrer);
            }
        }
        // A selector changes which registers the selected features have.
        for (const NodeReferences::Reference &reference : m_references.of(reached[i])) {
            if (reference.role == ReferenceRole::Selected)
                addValueChain(reference.target, reached, isReached);
        }
    }
    const bool isEverything = hasUnknownEffect(m_description[node]);
    std::vector<std::string> names;
    for (const NodeIndex listed : m_list.indices()) {
        if (listed != node && (isEverything || isReached[listed]))
            names.push_back(m_description[listed].name);
    }
    return names;
}

/// Adds the node and the nodes that have its value.
void NodeDependents::addValueChain(
    NodeIndex node, std::vector<NodeIndex> &reached, std::vector<bool> &isReached) const
{
    std::vector<NodeIndex> open{node};
    while (!open.empty()) {
        const NodeIndex next = open.back();
        open.pop_back();
        if (isReached[next])
            continue;
        isReached[next] = true;
        reached.push_back(next);
        for (const NodeProperty &property : m_description[next].properties) {
            const bool hasValue = property.kind == PropertyKind::PValue
                || property.kind == PropertyKind::PValueCopy || property.kind == PropertyKind::PValueIndexed
                || property.kind == PropertyKind::PValueDefault;
            const auto target = hasValue ? m_description.find(property.text) : std::nullopt;
            if (target)
                open.push_back(*target);
        }
    }
}
