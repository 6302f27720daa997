#include "sdk/address/AddressRules.h"

#include "sdk/address/AddressText.h"

#include <algorithm>
#include <iterator>

namespace {

using Reason = std::optional<std::string>;

struct ReservedRange
{
    std::uint32_t first;
    unsigned prefix;
    const char *text;
};

constexpr ReservedRange reservedRanges[] = {
    {0x00000000, 8, "an address that no device can have"},
    {0x7F000000, 8, "a loopback address, which only this machine itself can have"},
    {0xE0000000, 4, "a multicast address, which several devices share"},
    {0xF0000000, 4, "a reserved address"},
};

constexpr char chooseAnother[] = " Choose another one.";

/// Describes the addresses that a camera can have in a subnet, for example "10.1.1.1 to 10.1.1.254".
std::string hostRange(const InterfaceAddress &subnet)
{
    return ipv4ToString((subnet.address & subnet.mask) + 1) + " to "
        + ipv4ToString((subnet.address | ~subnet.mask) - 1);
}

Reason checkRange(const SeenCamera &, const AddressSettings &settings, const AddressSurroundings &)
{
    for (const ReservedRange &range : reservedRanges) {
        if ((settings.address & maskOfPrefix(range.prefix)) == range.first)
            return ipv4ToString(settings.address) + " is " + range.text + '.' + chooseAnother;
    }
    return std::nullopt;
}

Reason checkMask(const SeenCamera &, const AddressSettings &settings, const AddressSurroundings &)
{
    constexpr unsigned smallestSubnet = 30; // Two devices.
    const auto prefix = prefixOfMask(settings.mask);
    if (prefix && *prefix >= 1 && *prefix <= smallestSubnet)
        return std::nullopt;
    return "The subnet of " + addressText(settings.address, settings.mask)
        + " has no room for a camera and this machine. Use a prefix from 1 to 30.";
}

Reason checkSubnet(
    const SeenCamera &camera, const AddressSettings &settings, const AddressSurroundings &surroundings)
{
    const InterfaceAddress *const subnet = subnetFor(camera, settings.address, surroundings);
    if (!subnet) {
        const InterfaceAddress &own = camera.networkInterface;
        return ipv4ToString(settings.address) + " is not in the subnet of the network interface " + own.name
            + " (" + addressText(own.address, own.mask)
            + "), so this machine could not reach the camera. Choose " + hostRange(own)
            + ", or give the network interface an address in the other subnet.";
    }
    if (((settings.address ^ subnet->address) & settings.mask) == 0)
        return std::nullopt;
    return "With " + addressText(settings.address, settings.mask) + ", this machine ("
        + addressText(subnet->address, subnet->mask)
        + ") would not be in the subnet of the camera, so the camera could not answer. Use the prefix /"
        + std::to_string(prefixOfMask(subnet->mask).value_or(0)) + '.';
}

Reason checkEnds(
    const SeenCamera &camera, const AddressSettings &settings, const AddressSurroundings &surroundings)
{
    const InterfaceAddress &subnet = *subnetFor(camera, settings.address, surroundings);
    for (const std::uint32_t mask : {settings.mask, subnet.mask}) {
        if ((settings.address & ~mask) == 0)
            return ipv4ToString(settings.address) + " is the address of the subnet itself." + chooseAnother;
        if ((settings.address | mask) == ~0U)
            return ipv4ToString(settings.address) + " is the broadcast address of the subnet."
                + chooseAnother;
    }
    return std::nullopt;
}

Reason checkOwn(const SeenCamera &, const AddressSettings &settings, const AddressSurroundings &surroundings)
{
    for (const InterfaceAddress &own : surroundings.own) {
        if (own.address == settings.address)
            return ipv4ToString(settings.address) + " is the address of this machine (" + own.name + ")."
                + chooseAnother;
    }
    return std::nullopt;
}

Reason checkCameras(
    const SeenCamera &camera, const AddressSettings &settings, const AddressSurroundings &surroundings)
{
    for (const SeenCamera &other : surroundings.cameras) {
        if (other.camera.address == settings.address && identityOf(other.camera) != identityOf(camera.camera))
            return ipv4ToString(settings.address) + " is in use by the camera " + identityOf(other.camera)
                + '.' + chooseAnother;
    }
    return std::nullopt;
}

Reason checkNeighbours(
    const SeenCamera &camera, const AddressSettings &settings, const AddressSurroundings &surroundings)
{
    for (const Neighbour &neighbour : surroundings.neighbours) {
        const bool isOther = neighbour.mac != camera.camera.mac
            && neighbour.networkInterface == camera.networkInterface.name;
        if (neighbour.address == settings.address && isOther)
            return ipv4ToString(settings.address) + " is in use by another device ("
                + macToString(neighbour.mac) + ")." + chooseAnother;
    }
    return std::nullopt;
}

Reason checkGateway(const SeenCamera &, const AddressSettings &settings, const AddressSurroundings &)
{
    const std::uint32_t gateway = settings.gateway;
    if (gateway == 0)
        return std::nullopt;
    const bool isInSubnet = ((gateway ^ settings.address) & settings.mask) == 0;
    const bool isEnd = (gateway & ~settings.mask) == 0 || (gateway | settings.mask) == ~0U;
    if (isInSubnet && !isEnd && gateway != settings.address)
        return std::nullopt;
    return "The gateway " + ipv4ToString(gateway)
        + " is not another device in the subnet of the camera. Leave the gateway out if the camera is on the "
          "same network as this machine.";
}

using Check = Reason (*)(const SeenCamera &, const AddressSettings &, const AddressSurroundings &);

// In this order, because a check may rely on the ones before it.
constexpr Check checks[]
    = {checkRange, checkMask, checkSubnet, checkEnds, checkOwn, checkCameras, checkNeighbours, checkGateway};

} // namespace

std::optional<std::string> whyUnusable(
    const SeenCamera &camera, const AddressSettings &settings, const AddressSurroundings &surroundings)
{
    for (const Check check : checks) {
        if (auto reason = check(camera, settings, surroundings))
            return reason;
    }
    return std::nullopt;
}

const InterfaceAddress *subnetFor(
    const SeenCamera &camera, std::uint32_t address, const AddressSurroundings &surroundings)
{
    return addressInSubnet(surroundings.own, camera.networkInterface.index, address);
}
