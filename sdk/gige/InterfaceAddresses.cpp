#include "sdk/gige/InterfaceAddresses.h"

#include <arpa/inet.h>
#include <cerrno>
#include <ifaddrs.h>
#include <memory>
#include <net/if.h>
#include <netinet/in.h>
#include <optional>
#include <system_error>
#include <tuple>

namespace {

std::optional<std::uint32_t> toNumber(const sockaddr *address)
{
    if (!address || address->sa_family != AF_INET)
        return std::nullopt;
    return ntohl(reinterpret_cast<const sockaddr_in *>(address)->sin_addr.s_addr);
}

[[noreturn]] void throwFailure()
{
    throw std::system_error(errno, std::generic_category(), "The network interfaces cannot be listed");
}

} // namespace

bool operator==(const InterfaceAddress &left, const InterfaceAddress &right)
{
    const auto fields = [](const InterfaceAddress &address) {
        return std::tie(address.index, address.name, address.address, address.mask, address.canBroadcast,
            address.hasCarrier);
    };
    return fields(left) == fields(right);
}

std::vector<InterfaceAddress> interfaceAddresses()
{
    ifaddrs *list = nullptr;
    if (getifaddrs(&list) != 0)
        throwFailure();
    const std::unique_ptr<ifaddrs, void (*)(ifaddrs *)> owned(list, freeifaddrs);

    std::vector<InterfaceAddress> addresses;
    for (const ifaddrs *entry = list; entry; entry = entry->ifa_next) {
        const auto address = toNumber(entry->ifa_addr);
        if (!address || (entry->ifa_flags & IFF_UP) == 0)
            continue;
        // ifa_name is the label of the address, for example "eth0:1". The name of the network interface is
        // the part before the colon.
        const std::string label = entry->ifa_name, name = label.substr(0, label.find(':'));
        const unsigned index = if_nametoindex(name.c_str());
        if (index == 0 && errno == ENODEV)
            continue; // The network interface has just been removed.
        if (index == 0)
            throwFailure();
        addresses.push_back({index, name, *address, toNumber(entry->ifa_netmask).value_or(~0U),
            (entry->ifa_flags & IFF_BROADCAST) != 0, (entry->ifa_flags & IFF_RUNNING) != 0});
    }
    return addresses;
}

const InterfaceAddress *addressInSubnet(
    const std::vector<InterfaceAddress> &addresses, unsigned interfaceIndex, std::uint32_t cameraAddress)
{
    const InterfaceAddress *best = nullptr;
    for (const InterfaceAddress &candidate : addresses) {
        const bool contains = candidate.index == interfaceIndex
            && ((candidate.address ^ cameraAddress) & candidate.mask) == 0;
        if (contains && (!best || candidate.mask > best->mask))
            best = &candidate;
    }
    return best;
}
