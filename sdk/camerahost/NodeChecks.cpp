#include "sdk/camerahost/NodeChecks.h"

#include "sdk/camerahost/DescriptionElements.h"
#include "sdk/camerahost/FormulaCheck.h"
#include "sdk/camerahost/RegisterLayout.h"

#include <algorithm>

namespace {

using Kind = PropertyKind;

bool isNumber(NodeKind kind)
{
    return isInteger(kind) || isFloat(kind);
}

/// Returns what is wrong with a reference without which the node has no value.
std::string referenceProblem(
    const Description &description, const NodeDescription &node, const NodeProperty &reference)
{
    const auto target = description.find(reference.text);
    const std::string start = '"' + node.name + "\" refers to \"" + reference.text + "\", which ";
    if (!target)
        return start + "does not exist";
    const NodeKind kind = description[*target].kind;
    if (reference.kind == Kind::PPort)
        return kind == NodeKind::Port ? std::string() : start + "is no port";
    if (node.kind == NodeKind::String)
        return isText(kind) ? std::string() : start + "is no string";
    return isNumber(kind) ? std::string() : start + "is no number";
}

/// Returns what the node lacks, or an empty string.
std::string missingProperty(const NodeDescription &node)
{
    const auto has = [&node](Kind kind) { return node.properties.has(kind); };
    if (isRegister(node.kind)) {
        return !has(Kind::Address) && !has(Kind::PAddress) ? "address"
            : !has(Kind::Length) && !has(Kind::PLength)    ? "length"
            : !has(Kind::PPort)                            ? "port"
                                                           : "";
    }
    if (node.kind == NodeKind::SwissKnife || node.kind == NodeKind::IntSwissKnife)
        return has(Kind::Formula) ? "" : "formula";
    if (isFormula(node.kind)) {
        return !has(Kind::FormulaFrom) || !has(Kind::FormulaTo) ? "formula"
            : !has(Kind::PValue)                                ? "value"
                                                                : "";
    }
    if (!has(Kind::Value) && !has(Kind::PValue) && !has(Kind::PValueIndexed) && !has(Kind::ValueIndexed))
        return "value";
    if (node.kind == NodeKind::Command && !has(Kind::CommandValue) && !has(Kind::PCommandValue))
        return "command value";
    return "";
}

bool isNumberProperty(Kind kind, NodeKind node)
{
    switch (kind) {
    case Kind::Address:
    case Kind::Length:
    case Kind::LowestBit:
    case Kind::HighestBit:
    case Kind::Bit:
    case Kind::OnValue:
    case Kind::OffValue:
    case Kind::CommandValue:
        return true;
    case Kind::Value:
    case Kind::ValueIndexed:
    case Kind::ValueDefault:
        return isNumber(node);
    default:
        return false;
    }
}

/// Returns the text of the first property that should be a number but is none, or null.
const std::string *findMalformedNumber(const NodeDescription &node)
{
    const auto found
        = std::find_if(node.properties.begin(), node.properties.end(), [&node](const NodeProperty &property) {
              if (!isNumberProperty(property.kind, node.kind))
                  return false;
              return isFloat(node.kind) ? !parseFloat(property.text) : !parseInteger(property.text);
          });
    return found == node.properties.end() ? nullptr : &found->text;
}

std::string layoutProblem(const NodeDescription &node)
{
    const std::optional<std::int64_t> length = fixedLength(node);
    if (length && !isValidLength(node.kind, *length))
        return '"' + node.name + "\" cannot have a length of " + std::to_string(*length) + " bytes";
    const auto bytes = static_cast<std::uint32_t>(std::min(length.value_or(8), maxRegisterLength));
    if (!bitRange(node, bytes))
        return "the bits of \"" + node.name + "\" are not inside its register";
    return {};
}

} // namespace

bool isValidLength(NodeKind kind, std::int64_t length)
{
    if (length <= 0)
        return false;
    switch (kind) {
    case NodeKind::IntReg:
    case NodeKind::MaskedIntReg:
        return length <= maxIntegerLength;
    case NodeKind::FloatReg:
        return length == 4 || length == 8;
    case NodeKind::StringReg:
        return length <= maxTextLength;
    default:
        return length <= maxRegisterLength;
    }
}

std::string findProblem(const Description &description, NodeIndex index)
{
    const NodeDescription &node = description[index];
    if (node.kind == NodeKind::Category || node.kind == NodeKind::Port)
        return {};
    if (const std::string missing = missingProperty(node); !missing.empty())
        return '"' + node.name + "\" has no " + missing;
    for (const NodeProperty &property : node.properties) {
        if (roleOf(property.kind) != ReferenceRole::Value)
            continue;
        if (std::string problem = referenceProblem(description, node, property); !problem.empty())
            return problem;
    }
    if (const std::string *const text = findMalformedNumber(node))
        return '"' + node.name + "\" contains \"" + *text + "\", which is no number";
    if (isFormula(node.kind))
        return formulaProblem(node).value_or(std::string());
    return isRegister(node.kind) ? layoutProblem(node) : std::string();
}
