#include "sdk/protocol/Message.h"

#include <nlohmann/json.hpp>
#include <utility>
#include <vector>

using nlohmann::json;

namespace {

/// Returns true if a floating-point number is in the value. Messages contain such numbers as text, because
/// their conversion to an integer may be undefined.
bool containsFloat(const json &value)
{
    std::vector<const json *> open{&value}; // No recursion, because values can be nested deeply.
    while (!open.empty()) {
        const json &next = *open.back();
        open.pop_back();
        if (next.is_number_float())
            return true;
        if (!next.is_structured())
            continue;
        for (const json &child : next)
            open.push_back(&child);
    }
    return false;
}

} // namespace

Message::Message(Id id, std::string kind)
    : m_id(id), m_kind(std::move(kind)), m_body(std::make_shared<json>())
{ }

std::optional<Message> Message::fromLine(std::string_view line)
{
    try {
        json fields = json::parse(line);
        if (containsFloat(fields))
            return std::nullopt;
        Message message(fields.at("id").get<Id>(), fields.at("kind").get<std::string>());
        *message.m_body = std::move(fields.at("body"));
        return message;
    } catch (const std::exception &) {
        return std::nullopt;
    }
}

std::string Message::toLine() const
{
    const auto text
        = [](const json &value) { return value.dump(-1, ' ', false, json::error_handler_t::replace); };
    // The body can be large, so it is not copied into an object of all three fields.
    return "{\"body\":" + text(*m_body) + ",\"id\":" + text(m_id) + ",\"kind\":" + text(m_kind) + "}\n";
}
