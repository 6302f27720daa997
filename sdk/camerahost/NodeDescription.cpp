#include "sdk/camerahost/NodeDescription.h"

#include <algorithm>
#include <charconv>

const NodeProperty *PropertyList::find(PropertyKind kind) const
{
    const auto found = std::find_if(m_properties.begin(), m_properties.end(),
        [kind](const NodeProperty &property) { return property.kind == kind; });
    return found == m_properties.end() ? nullptr : &*found;
}

const std::string &PropertyList::text(PropertyKind kind) const
{
    static const std::string empty;
    const NodeProperty *const property = find(kind);
    return property ? property->text : empty;
}

std::int64_t EntryDescription::value() const
{
    return parseInteger(properties.text(PropertyKind::Value)).value_or(0);
}

std::int64_t onValue(const NodeDescription &boolean)
{
    return parseInteger(boolean.properties.text(PropertyKind::OnValue)).value_or(1);
}

std::int64_t offValue(const NodeDescription &boolean)
{
    return parseInteger(boolean.properties.text(PropertyKind::OffValue)).value_or(0);
}

void Description::add(NodeDescription node)
{
    if (m_indices.emplace(node.name, size()).second)
        m_nodes.push_back(std::move(node));
}

std::optional<NodeIndex> Description::find(const std::string &name) const
{
    const auto found = m_indices.find(name);
    if (found == m_indices.end())
        return std::nullopt;
    return found->second;
}

bool isRegister(NodeKind kind)
{
    return kind == NodeKind::IntReg || kind == NodeKind::MaskedIntReg || kind == NodeKind::FloatReg
        || kind == NodeKind::StringReg || kind == NodeKind::Register;
}

bool isInteger(NodeKind kind)
{
    return kind == NodeKind::Integer || kind == NodeKind::IntReg || kind == NodeKind::MaskedIntReg
        || kind == NodeKind::IntSwissKnife || kind == NodeKind::IntConverter || kind == NodeKind::Boolean
        || kind == NodeKind::Enumeration || kind == NodeKind::Command;
}

bool isFloat(NodeKind kind)
{
    return kind == NodeKind::Float || kind == NodeKind::FloatReg || kind == NodeKind::SwissKnife
        || kind == NodeKind::Converter;
}

bool isText(NodeKind kind)
{
    return kind == NodeKind::String || kind == NodeKind::StringReg;
}

bool isFormula(NodeKind kind)
{
    return kind == NodeKind::IntSwissKnife || kind == NodeKind::SwissKnife || kind == NodeKind::IntConverter
        || kind == NodeKind::Converter;
}

std::optional<std::int64_t> parseInteger(std::string_view text)
{
    const bool isNegative = !text.empty() && text.front() == '-';
    if (isNegative || (!text.empty() && text.front() == '+'))
        text.remove_prefix(1);
    int base = 10;
    if (text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X')) {
        base = 16;
        text.remove_prefix(2);
    }
    std::uint64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return static_cast<std::int64_t>(isNegative ? 0 - number : number);
}

std::optional<double> parseFloat(std::string_view text)
{
    if (const auto integer = parseInteger(text))
        return static_cast<double>(*integer);
    if (!text.empty() && text.front() == '+')
        text.remove_prefix(1);
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}
