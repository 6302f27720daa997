#include "sdk/gvcp/InterfaceAddresses.h"

#include "sdk/gvcp/Descriptor.h"

#include <arpa/inet.h>
#include <cerrno>
#include <cstring>
#include <linux/rtnetlink.h>
#include <net/if.h>
#include <optional>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <system_error>
#include <tuple>

// getifaddrs() does not report the network interface of an address, but only the label of the address, which
// can be any text.

namespace {

[[noreturn]] void throwFailure(int error)
{
    throw std::system_error(error, std::generic_category(), "The network interfaces cannot be listed");
}

/// Returns nothing if the network interface is down or has just been removed.
std::optional<InterfaceAddress> toAddress(int socket, const nlmsghdr *message)
{
    const auto *const header = static_cast<const ifaddrmsg *>(NLMSG_DATA(message));
    ifreq link{};
    link.ifr_ifindex = static_cast<int>(header->ifa_index);
    if (ioctl(socket, SIOCGIFNAME, &link) != 0 || ioctl(socket, SIOCGIFFLAGS, &link) != 0) {
        if (errno == ENODEV)
            return std::nullopt;
        throwFailure(errno);
    }
    if ((link.ifr_flags & IFF_UP) == 0)
        return std::nullopt;

    std::uint32_t local = 0, peer = 0;
    auto length = static_cast<unsigned>(IFA_PAYLOAD(message));
    for (const rtattr *attribute = IFA_RTA(header); RTA_OK(attribute, length);
         attribute = RTA_NEXT(attribute, length)) {
        if (attribute->rta_type == IFA_LOCAL)
            std::memcpy(&local, RTA_DATA(attribute), sizeof local);
        else if (attribute->rta_type == IFA_ADDRESS) // The address itself if there is no peer.
            std::memcpy(&peer, RTA_DATA(attribute), sizeof peer);
    }
    const std::uint32_t mask = header->ifa_prefixlen == 0 ? 0 : ~0U << (32 - header->ifa_prefixlen);
    return InterfaceAddress{header->ifa_index, link.ifr_name, ntohl(local), mask,
        (link.ifr_flags & IFF_BROADCAST) != 0, (link.ifr_flags & IFF_RUNNING) != 0,
        peer == local ? 0 : ntohl(peer)};
}

void requestAddresses(int socket)
{
    struct
    {
        nlmsghdr header;
        ifaddrmsg body;
    } request{};
    request.header.nlmsg_len = sizeof request;
    request.header.nlmsg_type = RTM_GETADDR;
    request.header.nlmsg_flags = NLM_F_REQUEST | NLM_F_DUMP;
    request.body.ifa_family = AF_INET;
    if (send(socket, &request, sizeof request, 0) < 0)
        throwFailure(errno);
}

} // namespace

bool operator==(const InterfaceAddress &left, const InterfaceAddress &right)
{
    const auto fields = [](const InterfaceAddress &address) {
        return std::tie(address.index, address.name, address.address, address.mask, address.canBroadcast,
            address.hasCarrier, address.peer);
    };
    return fields(left) == fields(right);
}

std::vector<InterfaceAddress> interfaceAddresses()
{
    const Descriptor socket(::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_ROUTE));
    if (socket.number() < 0)
        throwFailure(errno);
    requestAddresses(socket.number());

    std::vector<InterfaceAddress> addresses;
    alignas(nlmsghdr) char buffer[32 << 10]; // The system never sends more at a time.
    for (;;) {
        const ssize_t size = recv(socket.number(), buffer, sizeof buffer, 0);
        if (size < 0)
            throwFailure(errno);
        auto remaining = static_cast<unsigned>(size);
        for (const auto *message = reinterpret_cast<const nlmsghdr *>(buffer); NLMSG_OK(message, remaining);
             message = NLMSG_NEXT(message, remaining)) {
            if (message->nlmsg_type == NLMSG_DONE)
                return addresses;
            if (message->nlmsg_type == NLMSG_ERROR)
                throwFailure(-static_cast<const nlmsgerr *>(NLMSG_DATA(message))->error);
            if (auto address = toAddress(socket.number(), message))
                addresses.push_back(*std::move(address));
        }
    }
}

const InterfaceAddress *addressInSubnet(
    const std::vector<InterfaceAddress> &addresses, unsigned interfaceIndex, std::uint32_t cameraAddress)
{
    const InterfaceAddress *best = nullptr;
    for (const InterfaceAddress &candidate : addresses) {
        const bool contains = candidate.index == interfaceIndex
            && (cameraAddress | ~candidate.mask) == candidate.broadcastAddress();
        if (contains && (!best || candidate.mask > best->mask))
            best = &candidate;
    }
    return best;
}
