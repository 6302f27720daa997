#include "sdk/camerahost/NodeAccessRules.h"

#include <algorithm>

using namespace CvxCPP;

namespace {

constexpr const char *streamLock = "TLParamsLocked";

/// Returns true if reading or writing is excluded: `excluded` is "RO" or "WO".
bool hasMode(const NodeDescription &node, const char *excluded)
{
    if (node.properties.text(PropertyKind::ImposedAccessMode) == excluded)
        return true;
    if (!isRegister(node.kind))
        return false;
    const NodeProperty *const mode = node.properties.find(PropertyKind::AccessMode);
    return (mode ? mode->text : "RO") == excluded;
}

bool isComputed(NodeKind kind)
{
    return kind == NodeKind::SwissKnife || kind == NodeKind::IntSwissKnife || kind == NodeKind::Category;
}

} // namespace

CurrentAccess NodeAccessRules::evaluate(NodeIndex node)
{
    CurrentAccess result;
    if (!m_references.isUsable(node)) {
        result.lockReason = LockReason::NotAvailable;
        result.problem = AccessProblem{m_references.problem(node)}.sentence();
        return result;
    }
    if (m_references.usesImage(node)) {
        result.lockReason = LockReason::NotAvailable;
        result.problem = "The value comes with the images; it cannot be read from the camera.";
        return result;
    }
    const std::vector<NodeIndex> chain = m_engine.valueChain(node);
    if (findUnavailable(chain, result))
        return result;
    result.access = mode(chain);
    if (result.access == NodeAccess::NotAvailable)
        result.lockReason = LockReason::NotAvailable;
    else if (result.access == NodeAccess::ReadOnly)
        result.lockReason = LockReason::ReadOnlyNode;
    else if (m_isWatching)
        result.lockReason = LockReason::Watching;
    else
        findLock(chain, result);
    return result;
}

/// Looks for a node that is not implemented, then for one that is not available.
bool NodeAccessRules::findUnavailable(const std::vector<NodeIndex> &chain, CurrentAccess &result)
{
    for (const PropertyKind question : {PropertyKind::PIsImplemented, PropertyKind::PIsAvailable}) {
        for (const NodeIndex link : chain) {
            const NodeProperty *const reference = m_description[link].properties.find(question);
            if (!reference || ask(*reference, result.problem) == Answer::Yes)
                continue;
            const bool isMissing = question == PropertyKind::PIsImplemented && result.problem.empty();
            result.access = isMissing ? NodeAccess::NotImplemented : NodeAccess::NotAvailable;
            result.lockReason = isMissing ? LockReason::NotImplemented : LockReason::NotAvailable;
            if (!isMissing)
                result.lockingNode = responsibleFeature(reference->text);
            return true;
        }
    }
    return false;
}

void NodeAccessRules::findLock(const std::vector<NodeIndex> &chain, CurrentAccess &result)
{
    for (const NodeIndex link : chain) {
        const NodeProperty *const reference = m_description[link].properties.find(PropertyKind::PIsLocked);
        if (!reference || ask(*reference, result.problem) == Answer::No)
            continue;
        if (m_isStreaming && dependsOnStream(reference->text)) {
            result.lockReason = LockReason::StreamRunning;
            return;
        }
        result.lockReason = LockReason::LockedByNode;
        result.lockingNode = responsibleFeature(reference->text);
        return;
    }
}

NodeAccessRules::Answer NodeAccessRules::ask(const NodeProperty &reference, std::string &problem)
{
    const auto node = m_description.find(reference.text);
    if (!node) {
        problem = "The register description is wrong: there is no node \"" + reference.text + "\".";
        return Answer::Unknown;
    }
    const auto result = m_engine.readNumber(*node);
    if (const auto *const failure = std::get_if<AccessProblem>(&result)) {
        problem = '"' + reference.text + "\" cannot be read: " + failure->text + '.';
        return Answer::Unknown;
    }
    const Number &number = std::get<Number>(result);
    const bool isTrue = m_description[*node].kind == NodeKind::Boolean
        ? number == Number(onValue(m_description[*node]))
        : std::visit([](auto value) { return value < 0 || value > 0; }, number);
    return isTrue ? Answer::Yes : Answer::No;
}

bool NodeAccessRules::isAvailable(const EntryDescription &entry)
{
    std::string problem;
    return std::all_of(entry.properties.begin(), entry.properties.end(), [&](const NodeProperty &property) {
        const bool isQuestion
            = property.kind == PropertyKind::PIsImplemented || property.kind == PropertyKind::PIsAvailable;
        return !isQuestion || ask(property, problem) == Answer::Yes;
    });
}

NodeAccess NodeAccessRules::mode(const std::vector<NodeIndex> &chain) const
{
    const auto excludes = [&](const char *mode) {
        return std::any_of(
            chain.begin(), chain.end(), [&](NodeIndex link) { return hasMode(m_description[link], mode); });
    };
    const bool isReadOnly = excludes("RO") || std::any_of(chain.begin(), chain.end(), [this](NodeIndex link) {
        return isComputed(m_description[link].kind);
    });
    if (isReadOnly)
        return excludes("WO") ? NodeAccess::NotAvailable : NodeAccess::ReadOnly;
    return excludes("WO") ? NodeAccess::WriteOnly : NodeAccess::ReadWrite;
}

bool NodeAccessRules::dependsOnStream(const std::string &name)
{
    const auto node = m_description.find(name);
    const auto lock = m_description.find(streamLock);
    if (!node || !lock)
        return false;
    const std::vector<NodeIndex> sources = m_references.valueSources(*node);
    const std::vector<NodeIndex> lockChain = m_engine.valueChain(*lock); // A formula may read its register.
    return std::find_first_of(sources.begin(), sources.end(), lockChain.begin(), lockChain.end())
        != sources.end();
}

/// Returns the first feature, among the nodes on which this node depends, that a program can show. Prefers
/// every other feature to the lock of the stream.
std::string NodeAccessRules::responsibleFeature(const std::string &name) const
{
    const auto node = m_description.find(name);
    if (!node)
        return name;
    std::string found;
    for (const NodeIndex source : m_references.valueSources(*node)) {
        const std::optional<NodeIndex> feature = m_list.featureOf(source);
        if (!feature)
            continue;
        if (m_description[*feature].name != streamLock)
            return m_description[*feature].name;
        found = streamLock;
    }
    return found.empty() ? name : found;
}
