#include "sdk/doctor/NetworkChecks.h"

#include "sdk/address/AddressText.h"
#include "sdk/text/Utf8.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr std::int64_t gigabit = 1000; // Mbit/s.
constexpr std::int64_t jumboMtu = 9000;

bool hasAddress(const Machine &machine, const std::string &name)
{
    return std::any_of(machine.addresses.begin(), machine.addresses.end(),
        [&](const InterfaceAddress &address) { return address.name == name; });
}

/// Returns an address for an interface that has none: a link-local one, as cameras without a fixed address
/// have, or one of a subnet of its own if another interface has or gets a link-local address.
std::string newAddress(const Machine &machine, const NetworkLink &link)
{
    constexpr std::uint32_t linkLocal = 0xA9FE0000, linkLocalMask = 0xFFFF0000;
    bool isLinkLocalFree = std::none_of(machine.addresses.begin(), machine.addresses.end(),
        [](const InterfaceAddress &own) { return (own.address & linkLocalMask) == linkLocal; });
    int number = 100;
    for (const NetworkLink &other : machine.links) {
        if (other.name == link.name)
            break;
        if (other.hasCarrier && !hasAddress(machine, other.name) && !std::exchange(isLinkLocalFree, false))
            ++number;
    }
    return isLinkLocalFree ? "169.254.10.1/16" : "192.168." + std::to_string(number) + ".1/24";
}

Finding noAddress(const Machine &machine, const NetworkLink &link)
{
    return {Severity::Warning, link.name, link.name + " is connected, but has no IPv4 address.",
        "GigE cameras at this network interface are not found.",
        "sudo ip address add " + newAddress(machine, link) + " dev " + link.name};
}

Finding slowLink(const NetworkLink &link, bool hasCamera)
{
    return {hasCamera ? Severity::Warning : Severity::Notice, link.name,
        link.name + " runs at " + std::to_string(*link.speed) + " Mbit/s.",
        "GigE cameras need 1000 Mbit/s; a damaged cable or an old switch is the usual reason.",
        "sudo ethtool " + link.name};
}

Finding smallMtu(const NetworkLink &link)
{
    return {Severity::Notice, link.name,
        "The MTU of " + link.name + " is " + std::to_string(link.mtu) + " bytes.",
        "Packets of 9000 bytes cost less processor time, if the camera and the switch permit them.",
        "sudo ip link set " + link.name + " mtu " + std::to_string(jumboMtu)};
}

/// Appends what there is to say about a connected interface.
void checkConnected(const Machine &machine, const NetworkLink &link, Findings &findings)
{
    const std::size_t before = findings.size();
    const bool hasCamera = machine.hasCameraAt(link.name);
    if (!hasAddress(machine, link.name))
        findings.push_back(noAddress(machine, link));
    if (link.speed && *link.speed < gigabit)
        findings.push_back(slowLink(link, hasCamera));
    if (hasCamera && link.mtu < jumboMtu)
        findings.push_back(smallMtu(link));
    if (findings.size() == before)
        findings.push_back(
            {Severity::Ok, link.name, link.name + " is connected and has an address.", {}, {}});
}

/// Returns null if no interface or more than one has cameras.
const NetworkLink *onlyLinkWithCameras(const Machine &machine)
{
    const auto hasCamera = [&](const NetworkLink &link) { return machine.hasCameraAt(link.name); };
    const auto end = machine.links.end();
    const auto found = std::find_if(machine.links.begin(), end, hasCamera);
    const bool isOnly = found != end && std::none_of(std::next(found), end, hasCamera);
    return isOnly ? &*found : nullptr;
}

bool areInSameSubnet(const InterfaceAddress &left, const InterfaceAddress &right)
{
    return ((left.address ^ right.address) & std::min(left.mask, right.mask)) == 0;
}

} // namespace

Findings checkLinks(const Machine &machine)
{
    Findings findings;
    for (const NetworkLink &link : machine.links) {
        if (link.hasCarrier)
            checkConnected(machine, link, findings);
        else if (link.isUp)
            findings.push_back({Severity::Notice, link.name, link.name + " has no connection.",
                "No cable is plugged in, or the other end is switched off.", {}});
        else
            findings.push_back({Severity::Notice, link.name, link.name + " is switched off.",
                "Cameras at this network interface are not found.", "sudo ip link set " + link.name + " up"});
    }
    return findings;
}

Findings checkPacketSize(const Machine &machine, const std::string &camera, std::int64_t packetSize)
{
    constexpr std::int64_t usualMtu = 1500;
    const NetworkLink *const link = onlyLinkWithCameras(machine);
    if (!link)
        return {};
    const std::string subject = toPrintable(camera);
    const std::string what = "The camera sends packets of " + std::to_string(packetSize)
        + " bytes, and the MTU of " + link->name + " is " + std::to_string(link->mtu) + '.';
    const std::string set = "cvxctl set " + shellWord(subject) + " GevSCPSPacketSize=";
    if (packetSize > link->mtu)
        return {{Severity::Warning, subject, what,
            "Packets that are larger than the MTU are dropped, so images are incomplete.",
            set + std::to_string(link->mtu)}};
    if (packetSize <= usualMtu && link->mtu >= jumboMtu)
        return {{Severity::Notice, subject, what,
            "Larger packets cost less processor time, so fewer of them are lost.",
            set + std::to_string(jumboMtu)}};
    return {};
}

Findings checkSubnets(const Machine &machine)
{
    Findings findings;
    const std::vector<InterfaceAddress> &addresses = machine.addresses;
    for (std::size_t first = 0; first < addresses.size(); ++first) {
        for (std::size_t second = first + 1; second < addresses.size(); ++second) {
            const InterfaceAddress &left = addresses[first], &right = addresses[second];
            if (left.index == right.index || !areInSameSubnet(left, right))
                continue;
            findings.push_back({Severity::Warning, right.name,
                left.name + " (" + addressText(left.address, left.mask) + ") and " + right.name + " ("
                    + addressText(right.address, right.mask) + ") are in the same subnet.",
                "Commands and images of a camera can take the wrong network interface. Give one of them an "
                "address in another subnet.",
                "ip -brief -4 address"});
        }
    }
    return findings;
}
