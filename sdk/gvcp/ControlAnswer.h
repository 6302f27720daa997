#pragma once

#include "sdk/gvcp/MessageBytes.h"

#include <cstdint>
#include <optional>
#include <string>

/// An answer of a camera to a command.
struct ControlAnswer
{
    static constexpr std::uint16_t success = 0;
    static constexpr std::uint16_t notImplemented = 0x8001;
    static constexpr std::uint16_t invalidParameter = 0x8002;
    static constexpr std::uint16_t invalidAddress = 0x8003;
    static constexpr std::uint16_t writeProtected = 0x8004;
    static constexpr std::uint16_t badAlignment = 0x8005;
    static constexpr std::uint16_t accessDenied = 0x8006;
    static constexpr std::uint16_t busy = 0x8007;

    std::uint16_t status = success;
    MessageBytes data; ///< The bytes after the header; as many as the camera has sent.

    bool isSuccess() const { return status == success; }
};

/// Returns what the status means, as a part of a sentence, for example "the camera is busy".
std::string statusText(std::uint16_t status);

/// A datagram that has the form of an answer.
struct ParsedAnswer
{
    std::uint16_t code = 0; ///< The code of the command plus 1.
    std::uint16_t requestId = 0;
    ControlAnswer answer;
};

/// Parses a datagram. Returns nothing if it is shorter than a header.
std::optional<ParsedAnswer> parseAnswer(const MessageBytes &datagram);
