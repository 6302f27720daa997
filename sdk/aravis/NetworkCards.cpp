#include "sdk/aravis/NetworkCards.h"

#include <arpa/inet.h>
#include <cerrno>
#include <ifaddrs.h>
#include <memory>
#include <net/if.h>
#include <netinet/in.h>
#include <optional>
#include <system_error>

namespace {

std::optional<std::uint32_t> numberOf(const sockaddr *address)
{
    if (!address || address->sa_family != AF_INET)
        return std::nullopt;
    return ntohl(reinterpret_cast<const sockaddr_in *>(address)->sin_addr.s_addr);
}

std::string textOf(std::uint32_t number)
{
    const in_addr address{htonl(number)};
    char text[INET_ADDRSTRLEN] = "";
    inet_ntop(AF_INET, &address, text, sizeof text);
    return text;
}

} // namespace

std::vector<CardAddress> cardAddresses()
{
    ifaddrs *list = nullptr;
    if (getifaddrs(&list) != 0)
        throw std::system_error(errno, std::generic_category(), "The network cards cannot be listed");
    const std::unique_ptr<ifaddrs, void (*)(ifaddrs *)> owned(list, freeifaddrs);

    std::vector<CardAddress> cards;
    for (const ifaddrs *entry = list; entry; entry = entry->ifa_next) {
        const auto number = numberOf(entry->ifa_addr);
        if (number && (entry->ifa_flags & IFF_UP) != 0)
            cards.push_back(
                {entry->ifa_name, textOf(*number), *number, numberOf(entry->ifa_netmask).value_or(~0U)});
    }
    return cards;
}

const CardAddress *cardOf(const std::vector<CardAddress> &cards, const std::string &deviceAddress)
{
    in_addr address{};
    if (inet_pton(AF_INET, deviceAddress.c_str(), &address) != 1)
        return nullptr;
    const std::uint32_t number = ntohl(address.s_addr);
    const CardAddress *best = nullptr;
    for (const CardAddress &card : cards) {
        const bool holdsDevice = ((card.number ^ number) & card.mask) == 0;
        if (holdsDevice && (!best || card.mask > best->mask))
            best = &card;
    }
    return best;
}
