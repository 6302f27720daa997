#include "sdk/address/ForcedAddress.h"

#include "sdk/gvcp/ControlAnswer.h"
#include "sdk/gvcp/DiscoverySocket.h"

#include <algorithm>
#include <poll.h>

namespace {

using ForceClock = std::chrono::steady_clock;

constexpr int forceAttempts = 3;
constexpr std::chrono::milliseconds forceAnswerTimeout{500};
constexpr std::chrono::seconds newAddressTimeout{5};
constexpr std::chrono::seconds maxSilence{2};

std::optional<std::uint16_t> awaitStatus(const DiscoverySocket &socket, std::uint16_t requestId)
{
    const auto end = ForceClock::now() + forceAnswerTimeout;
    int maxDatagrams = 64;
    while (maxDatagrams > 0) {
        while (const auto datagram = socket.receiveAny(maxDatagrams)) {
            const auto parsed = parseAnswer(*datagram);
            if (parsed && parsed->code == forceAddressAcknowledgeCode && parsed->requestId == requestId)
                return parsed->answer.status;
        }
        const auto remaining = std::chrono::ceil<std::chrono::milliseconds>(end - ForceClock::now()).count();
        pollfd waiting{socket.descriptor(), POLLIN, 0};
        if (remaining <= 0 || poll(&waiting, 1, static_cast<int>(remaining)) == 0)
            break;
    }
    return std::nullopt;
}

} // namespace

std::optional<std::uint16_t> forceAddress(const SeenCamera &camera, const AddressSettings &settings)
{
    const DiscoverySocket socket(camera.networkInterface);
    const auto requestId = static_cast<std::uint16_t>(ForceClock::now().time_since_epoch().count() | 1);
    const MessageBytes command = forceAddressCommand(camera.camera.mac, settings, requestId);
    for (int attempt = 0; attempt < forceAttempts; ++attempt) {
        socket.broadcast(command, camera.networkInterface);
        if (const auto status = awaitStatus(socket, requestId))
            return status;
    }
    return std::nullopt;
}

std::optional<SeenCamera> awaitCamera(
    const MacAddress &mac, const std::function<bool(const SeenCamera &)> &accept)
{
    std::optional<SeenCamera> last;
    auto lastTime = ForceClock::now();
    searchCameras(interfaceAddresses(), newAddressTimeout, [&](const SeenCamera &seen) {
        if (seen.camera.mac != mac)
            return false;
        last = seen;
        lastTime = ForceClock::now();
        return accept(seen);
    });
    // A camera may still answer from its old address before it restarts its network.
    if (ForceClock::now() - lastTime > maxSilence)
        last.reset();
    return last;
}
