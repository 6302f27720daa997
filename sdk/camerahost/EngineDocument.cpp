#include "sdk/camerahost/EngineDocument.h"

#include "sdk/camerahost/NodeChecks.h"
#include "sdk/camerahost/RegisterLayout.h"

#include <algorithm>
#include <string_view>

namespace {

void appendEscaped(std::string &xml, std::string_view text)
{
    for (const char c : text) {
        switch (c) {
        case '&':
            xml += "&amp;";
            break;
        case '<':
            xml += "&lt;";
            break;
        case '>':
            xml += "&gt;";
            break;
        case '"':
            xml += "&quot;";
            break;
        default:
            xml += c;
        }
    }
}

void appendAttribute(std::string &xml, const char *name, std::string_view value)
{
    xml.append(" ").append(name).append("=\"");
    appendEscaped(xml, value);
    xml += '"';
}

/// Writes numbers with decimal digits and without leading zeros, which the engine would take for octal
/// numbers.
std::string engineText(const std::string &text, PropertyKind kind)
{
    const std::optional<std::int64_t> number = parseInteger(text);
    if (!number)
        return text;
    if (kind == PropertyKind::Address)
        return std::to_string(static_cast<std::uint64_t>(*number));
    return std::to_string(*number);
}

bool isVerbatim(const NodeDescription &node, PropertyKind kind)
{
    return isText(node.kind) || roleOf(kind) != ReferenceRole::None || kind == PropertyKind::Formula
        || kind == PropertyKind::FormulaTo || kind == PropertyKind::FormulaFrom
        || kind == PropertyKind::Expression;
}

void appendProperty(std::string &xml, const NodeDescription &node, const NodeProperty &property,
    const NodeProperty *offsetNode)
{
    const char *const element = elementOf(property.kind);
    xml.append("<").append(element);
    if (!property.attribute.empty()) {
        const bool isName = std::string_view(attributeNameOf(property.kind)) == "Name";
        appendAttribute(xml, attributeNameOf(property.kind),
            isName ? property.attribute : engineText(property.attribute, property.kind));
    }
    if (offsetNode)
        appendAttribute(xml, "pOffset", offsetNode->text);
    xml += '>';
    appendEscaped(
        xml, isVerbatim(node, property.kind) ? property.text : engineText(property.text, property.kind));
    xml.append("</").append(element).append(">");
}

void appendBits(std::string &xml, const NodeDescription &node)
{
    const auto length = static_cast<std::uint32_t>(fixedLength(node).value_or(maxIntegerLength));
    const std::optional<BitRange> bits = bitRange(node, length);
    if (!bits || node.kind != NodeKind::MaskedIntReg)
        return;
    const bool isReversed = isBigEndian(node);
    const std::uint32_t lowest = isReversed ? 8 * length - 1 - bits->lowest : bits->lowest;
    const std::uint32_t highest = isReversed ? 8 * length - 1 - bits->highest : bits->highest;
    xml += "<LSB>" + std::to_string(lowest) + "</LSB><MSB>" + std::to_string(highest) + "</MSB>";
}

const char *engineElement(NodeKind kind)
{
    const bool isPlainInteger
        = kind == NodeKind::Boolean || kind == NodeKind::Enumeration || kind == NodeKind::Command;
    return elementOf(isPlainInteger ? NodeKind::Integer : kind);
}

bool isWritten(const NodeProperty &property, const Description &description, const NodeReferences &references)
{
    if (!isForEngine(property.kind))
        return false;
    if (roleOf(property.kind) == ReferenceRole::None)
        return true;
    const auto target = description.find(property.text);
    return target && references.isUsable(*target);
}

} // namespace

std::string makeEngineDocument(const Description &description, const NodeReferences &references)
{
    std::string xml = "<RegisterDescription>";
    for (NodeIndex index = 0; index < description.size(); ++index) {
        const NodeDescription &node = description[index];
        if (node.kind == NodeKind::Category || !references.isUsable(index))
            continue;
        xml.append("<").append(engineElement(node.kind));
        appendAttribute(xml, "Name", node.name);
        xml += '>';
        for (auto property = node.properties.begin(); property != node.properties.end(); ++property) {
            if (!isWritten(*property, description, references))
                continue;
            const auto next = property + 1;
            const bool hasOffset = next != node.properties.end() && next->kind == PropertyKind::POffset;
            appendProperty(xml, node, *property, hasOffset ? &*next : nullptr);
        }
        appendBits(xml, node);
        xml.append("</").append(engineElement(node.kind)).append(">\n");
    }
    return xml + "</RegisterDescription>";
}
