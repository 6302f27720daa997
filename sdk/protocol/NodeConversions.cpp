#include "sdk/protocol/NodeConversions.h"

#include "sdk/protocol/JsonConversions.h"

#include <charconv>
#include <stdexcept>
#include <type_traits>

using Json = nlohmann::json;

namespace {

constexpr char hexDigits[] = "0123456789abcdef";

std::string toHex(const std::vector<std::uint8_t> &bytes)
{
    std::string text;
    text.reserve(2 * bytes.size());
    for (const std::uint8_t byte : bytes) {
        text += hexDigits[byte >> 4U];
        text += hexDigits[byte & 15U];
    }
    return text;
}

template <typename Number, typename... Format>
Number parse(const char *begin, const char *end, Format... format)
{
    Number number{};
    const auto result = std::from_chars(begin, end, number, format...);
    if (result.ec != std::errc() || result.ptr != end)
        throw std::invalid_argument("not a number");
    return number;
}

std::vector<std::uint8_t> fromHex(const std::string &text)
{
    std::vector<std::uint8_t> bytes(text.size() / 2);
    if (text.size() % 2 != 0)
        throw std::invalid_argument("an odd number of digits");
    for (std::size_t index = 0; index < bytes.size(); ++index) {
        const char *const digits = text.data() + 2 * index;
        bytes[index] = parse<std::uint8_t>(digits, digits + 2, 16);
    }
    return bytes;
}

std::string toText(double value)
{
    std::array<char, 32> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(), value);
    return {text.data(), result.ptr};
}

} // namespace

Json toJson(const CvxCPP::NodeValue &value)
{
    return std::visit(
        [](const auto &content) -> Json {
            using Content = std::decay_t<decltype(content)>;
            if constexpr (std::is_same_v<Content, std::monostate>)
                return nullptr;
            else if constexpr (std::is_same_v<Content, double>)
                return Json{{"float", toText(content)}};
            else if constexpr (std::is_same_v<Content, std::vector<std::uint8_t>>)
                return Json{{"bytes", toHex(content)}};
            else
                return content;
        },
        value);
}

CvxCPP::NodeValue toNodeValue(const Json &value)
{
    switch (value.type()) {
    case Json::value_t::null:
        return {};
    case Json::value_t::boolean:
        return value.get<bool>();
    case Json::value_t::number_integer:
    case Json::value_t::number_unsigned:
        return value.get<std::int64_t>();
    case Json::value_t::string:
        return value.get<std::string>();
    default:
        break;
    }
    if (value.contains("float")) {
        const auto text = value.at("float").get<std::string>();
        return parse<double>(text.data(), text.data() + text.size());
    }
    return fromHex(value.at("bytes").get<std::string>());
}

namespace CvxCPP {

CORVIX_JSON_CONVERSIONS(EnumerationEntry, name, displayName, value)

void to_json(Json &json, const NodeInfo &value)
{
    json = {{"name", value.name}, {"displayName", value.displayName}, {"category", value.category},
        {"toolTip", value.toolTip}, {"description", value.description}, {"unit", value.unit},
        {"type", static_cast<int>(value.type)}, {"visibility", static_cast<int>(value.visibility)},
        {"representation", static_cast<int>(value.representation)}, {"isStreamable", value.isStreamable},
        {"pollingTime", value.pollingTime}, {"entries", value.entries}, {"selectors", value.selectors},
        {"selected", value.selected}};
}

void from_json(const Json &json, NodeInfo &value)
{
    json.at("name").get_to(value.name);
    json.at("displayName").get_to(value.displayName);
    json.at("category").get_to(value.category);
    json.at("toolTip").get_to(value.toolTip);
    json.at("description").get_to(value.description);
    json.at("unit").get_to(value.unit);
    value.type = toEnumeration(json.at("type"), NodeType::Register);
    value.visibility = toEnumeration(json.at("visibility"), NodeVisibility::Invisible);
    value.representation = toEnumeration(json.at("representation"), NodeRepresentation::MacAddress);
    json.at("isStreamable").get_to(value.isStreamable);
    json.at("pollingTime").get_to(value.pollingTime);
    json.at("entries").get_to(value.entries);
    json.at("selectors").get_to(value.selectors);
    json.at("selected").get_to(value.selected);
}

void to_json(Json &json, const NodeState &value)
{
    json = {{"name", value.name}, {"access", static_cast<int>(value.access)},
        {"lockReason", static_cast<int>(value.lockReason)}, {"lockingNode", value.lockingNode},
        {"value", toJson(value.value)}, {"minimum", toJson(value.minimum)},
        {"maximum", toJson(value.maximum)}, {"increment", toJson(value.increment)},
        {"maxLength", value.maxLength}, {"availableEntries", value.availableEntries},
        {"isCommandDone", value.isCommandDone}, {"problem", value.problem}};
}

void from_json(const Json &json, NodeState &value)
{
    json.at("name").get_to(value.name);
    value.access = toEnumeration(json.at("access"), NodeAccess::ReadWrite);
    value.lockReason = toEnumeration(json.at("lockReason"), LockReason::LockedByNode);
    json.at("lockingNode").get_to(value.lockingNode);
    value.value = toNodeValue(json.at("value"));
    value.minimum = toNodeValue(json.at("minimum"));
    value.maximum = toNodeValue(json.at("maximum"));
    value.increment = toNodeValue(json.at("increment"));
    json.at("maxLength").get_to(value.maxLength);
    json.at("availableEntries").get_to(value.availableEntries);
    json.at("isCommandDone").get_to(value.isCommandDone);
    json.at("problem").get_to(value.problem);
}

} // namespace CvxCPP
