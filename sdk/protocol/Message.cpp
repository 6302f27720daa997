#include "sdk/protocol/Message.h"

#include <nlohmann/json.hpp>
#include <stdexcept>
#include <utility>

using nlohmann::json;

namespace {

/// Refuses floating-point numbers, because their conversion to an integer may be undefined. Messages contain
/// such numbers as text.
bool refuseFloat(int, json::parse_event_t, const json &value)
{
    if (value.is_number_float())
        throw std::invalid_argument("a message contains no floating-point numbers");
    return true;
}

} // namespace

Message::Message(Id id, std::string kind)
    : m_id(id), m_kind(std::move(kind)), m_body(std::make_shared<json>())
{ }

std::optional<Message> Message::fromLine(std::string_view line)
{
    try {
        json fields = json::parse(line, refuseFloat);
        Message message(fields.at("id").get<Id>(), fields.at("kind").get<std::string>());
        *message.m_body = std::move(fields.at("body"));
        return message;
    } catch (const std::exception &) {
        return std::nullopt;
    }
}

std::string Message::toLine() const
{
    const json fields{{"id", m_id}, {"kind", m_kind}, {"body", *m_body}};
    return fields.dump(-1, ' ', false, json::error_handler_t::replace) + '\n';
}
