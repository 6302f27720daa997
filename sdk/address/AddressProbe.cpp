#include "sdk/address/AddressProbe.h"

#include "sdk/address/NeighbourTable.h"
#include "sdk/gvcp/Descriptor.h"

#include <algorithm>
#include <chrono>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>

namespace {

constexpr std::uint16_t discardPort = 9; // Services that listen to it ignore what they receive.

sockaddr_in toSocketAddress(std::uint32_t address, std::uint16_t port)
{
    sockaddr_in result{};
    result.sin_family = AF_INET;
    result.sin_port = htons(port);
    result.sin_addr.s_addr = htonl(address);
    return result;
}

bool haveAllAnswered(const InterfaceAddress &from, const std::vector<std::uint32_t> &addresses)
{
    const std::vector<Neighbour> neighbours = readNeighbours();
    return std::all_of(addresses.begin(), addresses.end(), [&](std::uint32_t address) {
        return std::any_of(neighbours.begin(), neighbours.end(), [&](const Neighbour &neighbour) {
            return neighbour.address == address && neighbour.networkInterface == from.name;
        });
    });
}

} // namespace

void probeAddresses(const InterfaceAddress &from, const std::vector<std::uint32_t> &addresses)
{
    const Descriptor socket(::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    const sockaddr_in own = toSocketAddress(from.address, 0);
    // A failure is not looked at: the table then lacks the devices, as if they had not answered.
    if (bind(socket.number(), reinterpret_cast<const sockaddr *>(&own), sizeof own) != 0)
        return;
    for (const std::uint32_t address : addresses) {
        const sockaddr_in to = toSocketAddress(address, discardPort);
        [[maybe_unused]] const auto sent = sendto(
            socket.number(), "", 1, MSG_NOSIGNAL, reinterpret_cast<const sockaddr *>(&to), sizeof to);
    }
    // The kernel asks again after a second.
    constexpr std::chrono::milliseconds maxWait{1100};
    constexpr int pollInterval = 50; // Milliseconds.
    const auto end = std::chrono::steady_clock::now() + maxWait;
    while (std::chrono::steady_clock::now() < end && !haveAllAnswered(from, addresses))
        poll(nullptr, 0, pollInterval);
}
