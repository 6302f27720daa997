#include "sdk/gvcp/ForceAddress.h"

#include <algorithm>

namespace {

constexpr std::uint16_t forceAddressCommandCode = 0x0004;
constexpr std::uint16_t parameterSize = 56;

// Offsets of the fields in the parameters. All other bytes are 0.
constexpr std::size_t forcedMacOffset = 2, forcedAddressOffset = 20, forcedMaskOffset = 36,
                      forcedGatewayOffset = 52;

void put32(std::uint8_t *field, std::uint32_t number)
{
    for (int byte = 0; byte < 4; ++byte)
        field[byte] = static_cast<std::uint8_t>(number >> (24 - 8 * byte));
}

} // namespace

MessageBytes forceAddressCommand(
    const MacAddress &mac, const AddressSettings &settings, std::uint16_t requestId)
{
    MessageBytes command{commandKey, acknowledgeRequired | allowBroadcastAcknowledge};
    appendNumber(command, forceAddressCommandCode);
    appendNumber(command, parameterSize);
    appendNumber(command, requestId);
    command.resize(messageHeaderSize + parameterSize);
    std::uint8_t *const parameters = command.data() + messageHeaderSize;
    std::copy(mac.begin(), mac.end(), parameters + forcedMacOffset);
    put32(parameters + forcedAddressOffset, settings.address);
    put32(parameters + forcedMaskOffset, settings.mask);
    put32(parameters + forcedGatewayOffset, settings.gateway);
    return command;
}
