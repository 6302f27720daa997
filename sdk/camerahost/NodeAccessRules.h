#pragma once

#include "CvxCPP/Node.h"
#include "sdk/camerahost/NodeEngine.h"
#include "sdk/camerahost/NodeList.h"

#include <string>

/// Whether a node can be read and written at present, and why not.
struct CurrentAccess
{
    CvxCPP::NodeAccess access = CvxCPP::NodeAccess::NotAvailable; ///< Without regard to locks.
    CvxCPP::LockReason lockReason = CvxCPP::LockReason::None;
    std::string lockingNode; ///< May be empty.
    std::string problem; ///< Why the camera or the description does not answer the question.

    bool isReadable() const
    {
        return access == CvxCPP::NodeAccess::ReadOnly || access == CvxCPP::NodeAccess::ReadWrite;
    }
};

/// Determines the access of nodes: whether the node, and every node behind which its value is, is
/// implemented, available, writable by its nature, and not locked. The questions are asked in this order.
class NodeAccessRules
{
public:
    /// All three must exist as long as this object.
    NodeAccessRules(const Description &description, const NodeReferences &references, const NodeList &list,
        NodeEngine &engine)
        : m_description(description), m_references(references), m_list(list), m_engine(engine)
    { }

    CurrentAccess evaluate(NodeIndex node);

    /// Returns true if the entry of an enumeration is implemented and available.
    bool isAvailable(const EntryDescription &entry);

    void setWatching(bool isWatching) { m_isWatching = isWatching; }
    void setStreaming(bool isStreaming) { m_isStreaming = isStreaming; }

private:
    enum class Answer : std::uint8_t
    {
        No,
        Yes,
        Unknown
    };

    bool findUnavailable(const std::vector<NodeIndex> &chain, CurrentAccess &result);
    void findLock(const std::vector<NodeIndex> &chain, CurrentAccess &result);
    Answer ask(const NodeProperty &reference, std::string &problem);
    CvxCPP::NodeAccess mode(const std::vector<NodeIndex> &chain) const;
    bool dependsOnStream(const std::string &node);
    std::string responsibleFeature(const std::string &node) const;

    const Description &m_description;
    const NodeReferences &m_references;
    const NodeList &m_list;
    NodeEngine &m_engine;
    bool m_isWatching = false;
    bool m_isStreaming = false;
};
