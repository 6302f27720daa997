#include "sdk/gvcp/DiscoveryAcknowledgement.h"

#include "sdk/gvcp/MessageBytes.h"
#include "sdk/text/Utf8.h"

#include <algorithm>
#include <string_view>

namespace {

constexpr std::uint16_t discoveryCommandCode = 0x0002;
constexpr std::uint16_t discoveryAcknowledgeCode = 0x0003;
constexpr std::size_t payloadSize = 248; // The camera's first registers.

// Offsets of the fields in the payload.
constexpr std::size_t macOffset = 0x0A;
constexpr std::size_t offeredMethodsOffset = 0x10, enabledMethodsOffset = 0x14;
constexpr std::size_t addressOffset = 0x24;
constexpr std::size_t maskOffset = 0x34;
constexpr std::size_t gatewayOffset = 0x44;
constexpr std::size_t vendorOffset = 0x48, modelOffset = 0x68, versionOffset = 0x88;
constexpr std::size_t serialOffset = 0xD8, userNameOffset = 0xE8;

/// Reads a string, which ends at a NUL or at the end of its field. Replaces each byte that is not UTF-8 by
/// U+FFFD and each control character by a blank. Removes the blanks at both ends.
std::string readString(const std::uint8_t *field, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char *>(field), size);
    const std::string text = toPrintable(bytes.substr(0, bytes.find('\0')));
    const std::size_t begin = text.find_first_not_of(' ');
    return begin == std::string::npos ? std::string()
                                      : text.substr(begin, text.find_last_not_of(' ') + 1 - begin);
}

} // namespace

std::array<std::uint8_t, 8> discoveryCommand(std::uint16_t requestId)
{
    return {commandKey, acknowledgeRequired | allowBroadcastAcknowledge, discoveryCommandCode >> 8,
        discoveryCommandCode & 0xFF, 0, 0, static_cast<std::uint8_t>(requestId >> 8),
        static_cast<std::uint8_t>(requestId & 0xFF)};
}

std::optional<DiscoveryAcknowledgement> parseAcknowledgement(const std::uint8_t *data, std::size_t size)
{
    if (size < messageHeaderSize + payloadSize)
        return std::nullopt;
    const std::uint16_t status = read16(data), code = read16(data + 2), length = read16(data + 4);
    if (status != 0 || code != discoveryAcknowledgeCode || length != payloadSize)
        return std::nullopt;
    const std::uint8_t *const payload = data + messageHeaderSize;
    DiscoveryAcknowledgement result;
    result.requestId = read16(data + 6);
    result.offeredMethods = read32(payload + offeredMethodsOffset);
    result.enabledMethods = read32(payload + enabledMethodsOffset);
    CameraData &camera = result.camera;
    std::copy_n(payload + macOffset, camera.mac.size(), camera.mac.begin());
    camera.address = read32(payload + addressOffset);
    camera.mask = read32(payload + maskOffset);
    camera.gateway = read32(payload + gatewayOffset);
    camera.vendor = readString(payload + vendorOffset, 32);
    camera.model = readString(payload + modelOffset, 32);
    camera.version = readString(payload + versionOffset, 32);
    camera.serial = readString(payload + serialOffset, 16);
    camera.userName = readString(payload + userNameOffset, 16);
    return result;
}
