#pragma once

#include "sdk/gvcp/ControlAnswer.h"
#include "sdk/gvcp/Descriptor.h"

#include <chrono>
#include <cstdint>
#include <optional>

/// Sends commands to one camera and receives the answers. Not thread-safe.
class ControlConnection
{
public:
    /// A command is sent again if there is no answer within this time.
    static constexpr std::chrono::milliseconds answerTimeout{400};
    static constexpr int maxAttempts = 4;

    /// Limit for the time by which a busy camera may put off an answer.
    static constexpr std::chrono::seconds maxDelay{10};

    static constexpr std::size_t maxBlockSize = 512; ///< Bytes of memory in one answer.

    /// Both addresses are in the byte order of this machine. Throws std::system_error if the system cannot
    /// create the socket.
    ControlConnection(std::uint32_t interfaceAddress, std::uint32_t cameraAddress);

    /// Sends a command until the camera answers. Returns nothing if the camera does not answer. The answer
    /// can have any status and any size.
    std::optional<ControlAnswer> request(std::uint16_t command, const MessageBytes &parameters);

    /// Reads or writes one register.
    std::optional<ControlAnswer> requestRegister(std::uint32_t address);
    std::optional<ControlAnswer> writeRegister(std::uint32_t address, std::uint32_t value);

    /// Returns the number in a register. Returns nothing if the camera does not answer or refuses.
    std::optional<std::uint32_t> readRegister(std::uint32_t address);

private:
    using Time = std::chrono::steady_clock::time_point;

    std::optional<ControlAnswer> awaitAnswer(std::uint16_t command);
    std::optional<MessageBytes> receive(Time deadline) const;

    const Descriptor m_socket;
    std::uint16_t m_requestId = 0;
};
