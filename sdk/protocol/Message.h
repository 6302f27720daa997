#pragma once

#include <cstdint>
#include <exception>
#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <string_view>

/// One message between the library and a host. A message is sent as one line of JSON, for example {"body":
/// {…}, "id": 7, "kind": "listCameras"}. A content type has a static member `kind` and the nlohmann
/// conversions to_json() and from_json().
class Message
{
public:
    using Id = std::uint32_t;

    /// ID of a message that the host sends without a request. No request has this ID.
    static constexpr Id noRequest = 0;

    /// Makes a message with this content. A reply has the ID of its request.
    template <typename Content>
    Message(Id id, const Content &content) : Message(id, std::string(Content::kind))
    {
        to_json(*m_body, content);
    }

    /// Parses a line without its line feed. Returns nothing if the line is not a message.
    static std::optional<Message> fromLine(std::string_view line);

    /// Returns the message as a line with its line feed. Bytes that are not UTF-8 become U+FFFD.
    std::string toLine() const;

    Id id() const { return m_id; }

    /// Returns the content, or nothing if the message is of another kind or its body is malformed.
    template <typename Content>
    std::optional<Content> content() const
    {
        if (m_kind != Content::kind)
            return std::nullopt;
        try {
            Content content;
            from_json(*m_body, content);
            return content;
        } catch (const std::exception &) { // A member is missing or has another type.
            return std::nullopt;
        }
    }

private:
    Message(Id id, std::string kind);

    Id m_id;
    std::string m_kind;
    std::shared_ptr<nlohmann::json> m_body; // Not changed after construction.
};
