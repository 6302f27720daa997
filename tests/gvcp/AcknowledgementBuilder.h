#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// Builds a camera's answer to the discovery command, or a damaged one. The positions are offsets in the
/// datagram.
class AcknowledgementBuilder
{
public:
    static constexpr std::size_t requestIdPosition = 6, macPosition = 8 + 0x0A, methodsPosition = 8 + 0x10,
                                 addressPosition = 8 + 0x24, maskPosition = 8 + 0x34,
                                 gatewayPosition = 8 + 0x44, vendorPosition = 8 + 0x48,
                                 modelPosition = 8 + 0x68, versionPosition = 8 + 0x88,
                                 serialPosition = 8 + 0xD8, userNamePosition = 8 + 0xE8;

    AcknowledgementBuilder() : m_bytes(256)
    {
        put(0, {0x00, 0x00, 0x00, 0x03, 0x00, 0xF8});
        text(vendorPosition, "Orvelle").text(modelPosition, "Kx200");
    }

    AcknowledgementBuilder &put(std::size_t position, const std::vector<std::uint8_t> &bytes)
    {
        std::copy(bytes.begin(), bytes.end(), m_bytes.begin() + static_cast<std::ptrdiff_t>(position));
        return *this;
    }
    AcknowledgementBuilder &text(std::size_t position, const std::string &text)
    {
        return put(position, std::vector<std::uint8_t>(text.begin(), text.end()));
    }
    AcknowledgementBuilder &requestId(std::uint16_t id)
    {
        return put(
            requestIdPosition, {static_cast<std::uint8_t>(id >> 8), static_cast<std::uint8_t>(id & 0xFF)});
    }
    AcknowledgementBuilder &mac(const std::vector<std::uint8_t> &bytes) { return put(macPosition, bytes); }
    AcknowledgementBuilder &address(const std::vector<std::uint8_t> &bytes)
    {
        return put(addressPosition, bytes);
    }
    AcknowledgementBuilder &serial(const std::string &serial) { return text(serialPosition, serial); }
    AcknowledgementBuilder &resize(std::size_t size)
    {
        m_bytes.resize(size);
        m_bytes.shrink_to_fit(); // A sanitizer then reports every read past the end.
        return *this;
    }

    const std::vector<std::uint8_t> &bytes() const { return m_bytes; }

private:
    std::vector<std::uint8_t> m_bytes;
};
