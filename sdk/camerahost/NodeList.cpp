#include "sdk/camerahost/NodeList.h"

#include <algorithm>
#include <set>
#include <utility>

using namespace CvxCPP;

namespace {

constexpr const char *rootCategory = "Root";

template <typename Value>
struct NamedValue
{
    const char *name;
    Value value;
};

constexpr NamedValue<NodeVisibility> visibilities[] = {
    {"Beginner", NodeVisibility::Beginner},
    {"Expert", NodeVisibility::Expert},
    {"Guru", NodeVisibility::Guru},
    {"Invisible", NodeVisibility::Invisible},
};

constexpr NamedValue<NodeRepresentation> representations[] = {
    {"Linear", NodeRepresentation::Linear},
    {"Logarithmic", NodeRepresentation::Logarithmic},
    {"Boolean", NodeRepresentation::Boolean},
    {"PureNumber", NodeRepresentation::PureNumber},
    {"HexNumber", NodeRepresentation::HexNumber},
    {"IPV4Address", NodeRepresentation::IPv4Address},
    {"MACAddress", NodeRepresentation::MacAddress},
};

template <typename Value, std::size_t Count>
Value lookUp(const NamedValue<Value> (&values)[Count], const std::string &name, Value fallback)
{
    const auto found = std::find_if(std::begin(values), std::end(values),
        [&name](const NamedValue<Value> &value) { return name == value.name; });
    return found == std::end(values) ? fallback : found->value;
}

NodeVisibility visibilityOf(const PropertyList &properties)
{
    const auto own
        = lookUp(visibilities, properties.text(PropertyKind::Visibility), NodeVisibility::Beginner);
    return std::max(own, lookUp(visibilities, properties.text(PropertyKind::ImposedVisibility), own));
}

std::vector<EnumerationEntry> entriesOf(const NodeDescription &node)
{
    std::vector<EnumerationEntry> entries;
    for (const EntryDescription &entry : node.entries) {
        const std::string &displayName = entry.properties.text(PropertyKind::DisplayName);
        entries.push_back({entry.name, displayName.empty() ? entry.name : displayName, entry.value()});
    }
    return entries;
}

} // namespace

NodeList::NodeList(const Description &description, const NodeReferences &references)
    : m_description(description),
      m_references(references),
      m_isListed(description.size(), false),
      m_features(description.size())
{
    collect();
    addSelectors();
    findFeatures();
}

/// Visits every node once, each after the first category that contains it.
void NodeList::collect()
{
    struct Visit
    {
        NodeIndex node;
        NodeIndex category;
    };
    const auto root = m_description.find(rootCategory);
    if (!root)
        return;
    std::vector<Visit> visits{{*root, *root}};
    while (!visits.empty()) {
        const auto [node, category] = visits.back();
        visits.pop_back();
        if (m_isListed[node] || !nodeType(m_description[node].kind))
            continue;
        m_isListed[node] = true;
        m_indices.push_back(node);
        m_infos.push_back(makeInfo(node, node == category ? std::string() : m_description[category].name));
        if (m_description[node].kind != NodeKind::Category)
            continue;
        const auto &references = m_references.of(node);
        for (auto reference = references.rbegin(); reference != references.rend(); ++reference) {
            if (reference->role == ReferenceRole::Feature)
                visits.push_back({reference->target, node});
        }
    }
}

NodeInfo NodeList::makeInfo(NodeIndex index, const std::string &category) const
{
    const NodeDescription &node = m_description[index];
    const PropertyList &properties = node.properties;
    NodeInfo info;
    info.name = node.name;
    const std::string &displayName = properties.text(PropertyKind::DisplayName);
    info.displayName = displayName.empty() ? node.name : displayName;
    info.category = category;
    info.toolTip = properties.text(PropertyKind::ToolTip);
    info.description = properties.text(PropertyKind::Description);
    info.unit = inherited(index, PropertyKind::Unit);
    info.type = *nodeType(node.kind);
    info.visibility = visibilityOf(properties);
    info.representation = lookUp(
        representations, inherited(index, PropertyKind::Representation), NodeRepresentation::Undefined);
    info.isStreamable = properties.text(PropertyKind::Streamable) == "Yes";
    const auto pollingTime = parseInteger(inherited(index, PropertyKind::PollingTime));
    info.pollingTime
        = static_cast<std::uint32_t>(std::clamp<std::int64_t>(pollingTime.value_or(0), 0, UINT32_MAX));
    info.entries = entriesOf(node);
    return info;
}

/// Returns the text of a property, which may be stated at the node that has the value.
std::string NodeList::inherited(NodeIndex node, PropertyKind kind) const
{
    for (const NodeIndex link : valueChain(node)) {
        const NodeDescription &description = m_description[link];
        if (const NodeProperty *const property = description.properties.find(kind))
            return property->text;
        if (isFormula(description.kind))
            break; // What is behind a formula is another quantity.
    }
    return {};
}

std::vector<NodeIndex> NodeList::valueChain(NodeIndex node) const
{
    std::vector<NodeIndex> chain{node};
    if (!m_references.isUsable(node))
        return chain; // The chain of an unusable node may have no end.
    while (
        const NodeProperty *const value = m_description[chain.back()].properties.find(PropertyKind::PValue)) {
        const auto target = m_description.find(value->text);
        if (!target) // The references of a category are not checked.
            break;
        chain.push_back(*target);
    }
    return chain;
}

void NodeList::addSelectors()
{
    std::vector<std::size_t> positions(m_description.size(), 0);
    for (std::size_t i = 0; i < m_indices.size(); ++i)
        positions[m_indices[i]] = i;
    std::set<std::pair<NodeIndex, NodeIndex>> known;
    for (std::size_t i = 0; i < m_indices.size(); ++i) {
        for (const NodeReferences::Reference &reference : m_references.of(m_indices[i])) {
            const bool isSelected = reference.role == ReferenceRole::Selected && contains(reference.target);
            if (!isSelected || !known.insert({m_indices[i], reference.target}).second)
                continue;
            NodeInfo &selected = m_infos[positions[reference.target]];
            m_infos[i].selected.push_back(selected.name);
            selected.selectors.push_back(m_infos[i].name);
        }
    }
}

void NodeList::findFeatures()
{
    for (const NodeIndex node : m_indices)
        m_features[node] = node;
    for (const NodeIndex node : m_indices) {
        for (const NodeIndex link : valueChain(node)) {
            if (!m_features[link])
                m_features[link] = node;
        }
    }
}

std::optional<NodeIndex> NodeList::featureOf(NodeIndex node) const
{
    return m_features[node];
}

std::optional<NodeType> nodeType(NodeKind kind)
{
    switch (kind) {
    case NodeKind::Category:
        return NodeType::Category;
    case NodeKind::Boolean:
        return NodeType::Boolean;
    case NodeKind::Enumeration:
        return NodeType::Enumeration;
    case NodeKind::Command:
        return NodeType::Command;
    case NodeKind::Register:
        return NodeType::Register;
    case NodeKind::Port:
        return std::nullopt;
    default:
        return isText(kind) ? NodeType::String : isFloat(kind) ? NodeType::Float : NodeType::Integer;
    }
}
