#include "sdk/camerahost/NodeWriter.h"

#include "sdk/camerahost/ValueChecks.h"
#include "sdk/text/Utf8.h"

#include <algorithm>

using namespace CvxCPP;

namespace {

constexpr std::size_t maxTextInMessage = 100;

std::string feature(const NodeDescription &node)
{
    return "The feature \"" + node.name + '"';
}

RequestFailedReply wrongType(const NodeDescription &node, const char *expected)
{
    return {DeviceFailure::WrongType, feature(node) + " takes " + expected + '.'};
}

RequestFailedReply outOfRange(
    const NodeDescription &node, const std::string &value, const std::string &reason)
{
    return {DeviceFailure::OutOfRange,
        feature(node) + " cannot be set to " + toPrintable(value.substr(0, maxTextInMessage)) + ": " + reason
            + '.'};
}

/// Why the access does not allow to write, as a clause.
std::string lockText(const CurrentAccess &access)
{
    const std::string node = access.lockingNode.empty() ? "" : " by \"" + access.lockingNode + '"';
    switch (access.lockReason) {
    case LockReason::NotImplemented:
        return "the camera does not have it";
    case LockReason::NotAvailable:
        return "it is not available at present"
            + (access.lockingNode.empty() ? "" : ", which depends on \"" + access.lockingNode + '"');
    case LockReason::ReadOnlyNode:
        return "it is read-only";
    case LockReason::Watching:
        return "the camera was opened only to watch it";
    case LockReason::StreamRunning:
        return "it is locked while the stream runs";
    case LockReason::LockedByNode:
        return "it is locked" + node;
    case LockReason::None:
        break;
    }
    return {};
}

std::string joinedNames(const std::vector<std::string> &names)
{
    std::string text;
    for (const std::string &name : names)
        text += (text.empty() ? "" : ", ") + name;
    return text;
}

} // namespace

std::optional<RequestFailedReply> NodeWriter::write(NodeIndex index, const NodeValue &value)
{
    const NodeDescription &node = m_description[index];
    const NodeType type = *nodeType(node.kind);
    const bool hasValue = !std::holds_alternative<std::monostate>(value);
    if (type == NodeType::Category)
        return RequestFailedReply{
            DeviceFailure::WrongType, feature(node) + " is a category, which has no value."};
    if (type == NodeType::Command && hasValue)
        return RequestFailedReply{
            DeviceFailure::WrongType, feature(node) + " is a command, which takes no value."};
    if (type != NodeType::Command && !hasValue)
        return RequestFailedReply{DeviceFailure::WrongType, feature(node) + " is no command."};
    if (auto failure = checkAccess(index))
        return failure;
    return type == NodeType::Command ? finish(index, execute(index)) : writeChecked(index, value);
}

NodeWriter::Failure NodeWriter::checkAccess(NodeIndex node)
{
    const CurrentAccess access = m_rules.evaluate(node);
    if (access.lockReason == LockReason::None)
        return std::nullopt;
    const bool isThere
        = access.lockReason != LockReason::NotImplemented && access.lockReason != LockReason::NotAvailable;
    std::string text = feature(m_description[node]) + " cannot be written: " + lockText(access) + '.';
    if (!access.problem.empty())
        text += ' ' + access.problem;
    return RequestFailedReply{isThere ? DeviceFailure::NotWritable : DeviceFailure::NotAvailable, text};
}

NodeWriter::Failure NodeWriter::writeChecked(NodeIndex index, const NodeValue &value)
{
    const NodeDescription &node = m_description[index];
    const auto *const integer = std::get_if<std::int64_t>(&value);
    const auto *const number = std::get_if<double>(&value);
    const auto *const text = std::get_if<std::string>(&value);
    switch (*nodeType(node.kind)) {
    case NodeType::Integer:
        return integer ? writeInteger(index, *integer) : wrongType(node, "integers");
    case NodeType::Float:
        return number ? writeFloat(index, *number)
            : integer ? writeFloat(index, static_cast<double>(*integer))
                      : wrongType(node, "numbers");
    case NodeType::Boolean: {
        const auto *const isOn = std::get_if<bool>(&value);
        if (!isOn)
            return wrongType(node, "true or false");
        return finish(index, writeNumber(index, *isOn ? onValue(node) : offValue(node)));
    }
    case NodeType::Enumeration:
        return text ? writeEntry(index, *text) : wrongType(node, "the name of an entry");
    case NodeType::String:
        return text ? writeText(index, *text) : wrongType(node, "text");
    case NodeType::Register:
        if (const auto *const bytes = std::get_if<std::vector<std::uint8_t>>(&value))
            return writeBytes(index, *bytes);
        return wrongType(node, "bytes");
    case NodeType::Category:
    case NodeType::Command:
        break;
    }
    return std::nullopt; // write() has handled these types.
}

NodeWriter::Failure NodeWriter::writeInteger(NodeIndex node, std::int64_t value)
{
    if (const auto reason = checkInteger(value, m_reader.readLimits(node)))
        return outOfRange(m_description[node], std::to_string(value), *reason);
    return finish(node, writeNumber(node, value));
}

NodeWriter::Failure NodeWriter::writeFloat(NodeIndex node, double value)
{
    double accepted = value;
    if (const auto reason = checkFloat(accepted, m_reader.readLimits(node)))
        return outOfRange(m_description[node], numberText(value), *reason);
    return finish(node, writeNumber(node, accepted));
}

NodeWriter::Failure NodeWriter::writeEntry(NodeIndex node, const std::string &name)
{
    const auto &entries = m_description[node].entries;
    const auto entry = std::find_if(
        entries.begin(), entries.end(), [&name](const EntryDescription &e) { return e.name == name; });
    if (entry != entries.end() && m_rules.isAvailable(*entry))
        return finish(node, writeNumber(node, entry->value()));
    const std::string available = joinedNames(m_reader.readAvailableEntries(node));
    return outOfRange(m_description[node], '"' + name + '"',
        (entry == entries.end() ? "it has no such entry" : "this entry is not available at present")
            + (available.empty() ? std::string() : "; possible are " + available));
}

NodeWriter::Failure NodeWriter::writeText(NodeIndex node, const std::string &value)
{
    if (value.find('\0') != std::string::npos)
        return RequestFailedReply{DeviceFailure::InvalidParameter,
            feature(m_description[node]) + " takes text without zero bytes."};
    const std::int64_t maxLength = m_reader.readMaxLength(node);
    if (maxLength > 0 && value.size() > static_cast<std::size_t>(maxLength))
        return outOfRange(m_description[node], '"' + value + '"',
            "the text has " + std::to_string(value.size()) + " bytes, but only " + std::to_string(maxLength)
                + " fit");
    return finish(node, m_engine.writeText(node, value));
}

NodeWriter::Failure NodeWriter::writeBytes(NodeIndex node, const std::vector<std::uint8_t> &value)
{
    const std::int64_t length = m_reader.readMaxLength(node);
    if (length > 0 && value.size() != static_cast<std::size_t>(length))
        return outOfRange(m_description[node], std::to_string(value.size()) + " bytes",
            "its length is " + std::to_string(length) + " bytes");
    return finish(node, m_engine.writeBytes(node, value));
}

std::optional<AccessProblem> NodeWriter::writeNumber(NodeIndex node, Number value)
{
    auto problem = m_engine.writeNumber(node, value);
    for (const NodeProperty &property : m_description[node].properties) {
        const auto copy
            = property.kind == PropertyKind::PValueCopy ? m_description.find(property.text) : std::nullopt;
        if (!problem && copy)
            problem = m_engine.writeNumber(*copy, value);
    }
    return problem;
}

std::optional<AccessProblem> NodeWriter::execute(NodeIndex command)
{
    const auto value = readCommandValue(m_description, m_engine, m_description[command]);
    if (const auto *const problem = std::get_if<AccessProblem>(&value))
        return *problem;
    return writeNumber(command, std::get<std::int64_t>(value));
}

NodeWriter::Failure NodeWriter::finish(NodeIndex node, const std::optional<AccessProblem> &problem)
{
    if (!problem)
        return std::nullopt;
    return RequestFailedReply{
        DeviceFailure::Device, feature(m_description[node]) + " cannot be written: " + problem->text + '.'};
}
