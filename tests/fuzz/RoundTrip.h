#pragma once

#include "sdk/protocol/Message.h"
#include "sdk/text/Utf8.h"
#include "tests/fuzz/FuzzTarget.h"

#include <nlohmann/json.hpp>

/// If the message has content of this type, requires that the content is unchanged after it is sent again.
template <typename Content>
void requireSameAfterRoundTrip(const Message &message)
{
    const std::optional<Content> content = message.content<Content>();
    if (!content)
        return;
    const std::string line = Message(message.id(), *content).toLine();
    require(line.find('\n') + 1 == line.size(), "a message is one line");
    require(toValidUtf8(line) == line, "a message is valid UTF-8");
    const std::optional<Message> copy = Message::fromLine(line.substr(0, line.size() - 1));
    require(copy && copy->id() == message.id(), "a message keeps its ID");
    const std::optional<Content> copied = copy->content<Content>();
    require(copied && nlohmann::json(*copied) == nlohmann::json(*content), "a message keeps its content");
}
