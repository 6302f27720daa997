#include "sdk/protocol/Message.h"

#include <nlohmann/json.hpp>
#include <utility>

using nlohmann::json;

Message::Message(Id id, std::string kind)
    : m_id(id), m_kind(std::move(kind)), m_body(std::make_shared<json>())
{ }

std::optional<Message> Message::fromLine(std::string_view line)
{
    try {
        json fields = json::parse(line);
        Message message(fields.at("id").get<Id>(), fields.at("kind").get<std::string>());
        *message.m_body = std::move(fields.at("body"));
        return message;
    } catch (const json::exception &) {
        return std::nullopt;
    }
}

std::string Message::toLine() const
{
    const json fields{{"id", m_id}, {"kind", m_kind}, {"body", *m_body}};
    return fields.dump(-1, ' ', false, json::error_handler_t::replace) + '\n';
}
