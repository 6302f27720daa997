#include "sdk/aravis/NetworkInterfaces.h"

#include <arpa/inet.h>
#include <cerrno>
#include <ifaddrs.h>
#include <memory>
#include <net/if.h>
#include <netinet/in.h>
#include <optional>
#include <system_error>

namespace {

std::optional<std::uint32_t> toNumber(const sockaddr *address)
{
    if (!address || address->sa_family != AF_INET)
        return std::nullopt;
    return ntohl(reinterpret_cast<const sockaddr_in *>(address)->sin_addr.s_addr);
}

std::string toText(std::uint32_t number)
{
    const in_addr address{htonl(number)};
    char text[INET_ADDRSTRLEN] = "";
    inet_ntop(AF_INET, &address, text, sizeof text);
    return text;
}

} // namespace

std::vector<InterfaceAddress> interfaceAddresses()
{
    ifaddrs *list = nullptr;
    if (getifaddrs(&list) != 0)
        throw std::system_error(errno, std::generic_category(), "The network interfaces cannot be listed");
    const std::unique_ptr<ifaddrs, void (*)(ifaddrs *)> owned(list, freeifaddrs);

    std::vector<InterfaceAddress> addresses;
    for (const ifaddrs *entry = list; entry; entry = entry->ifa_next) {
        const auto number = toNumber(entry->ifa_addr);
        if (number && (entry->ifa_flags & IFF_UP) != 0)
            addresses.push_back(
                {entry->ifa_name, toText(*number), *number, toNumber(entry->ifa_netmask).value_or(~0U)});
    }
    return addresses;
}

const InterfaceAddress *findAddressFor(
    const std::vector<InterfaceAddress> &addresses, const std::string &deviceAddress)
{
    in_addr device{};
    if (inet_pton(AF_INET, deviceAddress.c_str(), &device) != 1)
        return nullptr;
    const std::uint32_t number = ntohl(device.s_addr);
    const InterfaceAddress *best = nullptr;
    for (const InterfaceAddress &address : addresses) {
        const bool isInNetwork = ((address.number ^ number) & address.mask) == 0;
        if (isInNetwork && (!best || address.mask > best->mask))
            best = &address;
    }
    return best;
}
