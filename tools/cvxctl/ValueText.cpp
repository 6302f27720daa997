#include "tools/cvxctl/ValueText.h"

#include <array>
#include <charconv>
#include <cinttypes>
#include <cstdio>
#include <type_traits>

using namespace CvxCPP;

namespace {

std::string floatText(double value)
{
    std::array<char, 32> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(), value);
    return {text.data(), result.ptr};
}

std::string bytesText(const std::vector<std::uint8_t> &bytes)
{
    std::string text;
    for (const std::uint8_t byte : bytes) {
        std::array<char, 3> digits{};
        std::snprintf(digits.data(), digits.size(), "%02x", byte);
        text += digits.data();
    }
    return text;
}

/// Returns the lowest `count` bytes of the number, the highest of them first, with a separator between them.
std::string joinBytes(std::int64_t value, int count, const char *format, char separator)
{
    std::string text;
    for (int byte = count - 1; byte >= 0; --byte) {
        std::array<char, 4> digits{};
        std::snprintf(digits.data(), digits.size(), format,
            static_cast<unsigned>(static_cast<std::uint64_t>(value) >> (8 * byte) & 0xFFU));
        text += digits.data();
        if (byte > 0)
            text += separator;
    }
    return text;
}

std::string integerText(std::int64_t value, NodeRepresentation representation)
{
    std::array<char, 24> hex{};
    switch (representation) {
    case NodeRepresentation::HexNumber:
        std::snprintf(hex.data(), hex.size(), "0x%" PRIX64, static_cast<std::uint64_t>(value));
        return hex.data();
    case NodeRepresentation::IPv4Address:
        return joinBytes(value, 4, "%u", '.');
    case NodeRepresentation::MacAddress:
        return joinBytes(value, 6, "%02X", ':');
    default:
        return std::to_string(value);
    }
}

} // namespace

std::string valueText(const NodeValue &value, NodeRepresentation representation)
{
    return std::visit(
        [representation](const auto &content) -> std::string {
            using Content = std::decay_t<decltype(content)>;
            if constexpr (std::is_same_v<Content, std::int64_t>)
                return integerText(content, representation);
            else if constexpr (std::is_same_v<Content, double>)
                return floatText(content);
            else if constexpr (std::is_same_v<Content, bool>)
                return content ? "true" : "false";
            else if constexpr (std::is_same_v<Content, std::string>)
                return content;
            else if constexpr (std::is_same_v<Content, std::vector<std::uint8_t>>)
                return bytesText(content);
            else
                return {};
        },
        value);
}

nlohmann::ordered_json nodeJson(const NodeInfo &info, const NodeState &state)
{
    nlohmann::ordered_json json{{"name", info.name}, {"displayName", info.displayName},
        {"category", info.category}, {"type", typeText(info.type)}, {"access", accessText(state.access)},
        {"value", valueJson(state.value)}};
    if (!info.unit.empty())
        json["unit"] = info.unit;
    const std::pair<const char *, const NodeValue &> limits[]
        = {{"minimum", state.minimum}, {"maximum", state.maximum}, {"increment", state.increment}};
    for (const auto &[key, limit] : limits) {
        if (limit.index() != 0)
            json[key] = valueJson(limit);
    }
    if (info.type == NodeType::Enumeration)
        json["entries"] = state.availableEntries;
    if (!info.selectors.empty())
        json["selectors"] = info.selectors;
    if (!info.description.empty())
        json["description"] = info.description;
    if (const std::string lock = lockText(state); !lock.empty())
        json["locked"] = lock;
    if (!state.problem.empty())
        json["problem"] = state.problem;
    return json;
}

const char *typeText(NodeType type)
{
    static constexpr const char *names[]
        = {"category", "integer", "float", "boolean", "enumeration", "string", "command", "register"};
    return names[static_cast<std::size_t>(type)];
}

const char *accessText(NodeAccess access)
{
    static constexpr const char *names[] = {"NI", "NA", "RO", "WO", "RW"};
    return names[static_cast<std::size_t>(access)];
}

std::string lockText(const NodeState &state)
{
    switch (state.lockReason) {
    case LockReason::None:
        return {};
    case LockReason::NotImplemented:
        return "the camera does not have this feature";
    case LockReason::NotAvailable:
        return state.lockingNode.empty() ? "not available at present"
                                         : "not available because of " + state.lockingNode;
    case LockReason::ReadOnlyNode:
        return "the camera only reports this value";
    case LockReason::Watching:
        return "the camera is opened for reading only";
    case LockReason::StreamRunning:
        return "the stream is running";
    case LockReason::LockedByNode:
        return state.lockingNode.empty() ? "locked by the camera" : "locked by " + state.lockingNode;
    }
    return {};
}
