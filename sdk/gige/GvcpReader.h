#pragma once

#include "sdk/gige/Descriptor.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

/// Reads registers of a GigE Vision camera without controlling it, also while another program controls it.
/// Not thread-safe.
class GvcpReader
{
public:
    /// A command is sent again if there is no answer within this time.
    static constexpr std::chrono::milliseconds answerTimeout{400};
    static constexpr int maxAttempts = 4;

    /// Limit for the time by which a busy camera may put off an answer.
    static constexpr std::chrono::seconds maxDelay{10};

    /// Both addresses are in the byte order of this machine. Throws GenTlError (GC_ERR_IO) if the system
    /// cannot create the socket.
    GvcpReader(std::uint32_t interfaceAddress, std::uint32_t cameraAddress);

    /// Reads any number of bytes at any address. Throws GenTlError: GC_ERR_TIMEOUT if the camera does not
    /// answer, GC_ERR_ACCESS_DENIED, GC_ERR_INVALID_ADDRESS or GC_ERR_IO.
    void read(std::uint64_t address, void *data, std::size_t size);

    /// Returns the number in a register.
    std::uint32_t readRegister(std::uint32_t address);

private:
    using Time = std::chrono::steady_clock::time_point;
    using Bytes = std::vector<std::uint8_t>;

    void readBlock(std::uint32_t address, std::uint8_t *data, std::size_t size);
    Bytes request(std::uint16_t command, const Bytes &parameters);
    std::optional<Bytes> awaitAnswer(std::uint16_t command);
    std::optional<Bytes> receive(Time deadline) const;

    const Descriptor m_socket;
    std::uint16_t m_requestId = 0;
};
