// These tests check which addresses a camera can get, what is proposed, and how a camera's answers are
// understood.

#include "sdk/address/AddressPlan.h"
#include "sdk/address/AddressProposal.h"

#include <gtest/gtest.h>
#include <set>

namespace {

std::uint32_t ip(const char *text)
{
    return parseIpv4(text).value();
}

InterfaceAddress networkInterface(const char *address, unsigned prefix, unsigned index = 2)
{
    return {index, "card" + std::to_string(index), ip(address), maskOfPrefix(prefix), true, true};
}

SeenCamera seenCamera(const char *address, std::uint8_t mac, const InterfaceAddress &own)
{
    SeenCamera camera;
    camera.camera.mac = {2, 0, 0, 0, 0, mac};
    camera.camera.address = ip(address);
    camera.camera.mask = maskOfPrefix(24);
    camera.offeredMethods = persistentAddressMethod | dhcpMethod | linkLocalMethod;
    camera.enabledMethods = dhcpMethod | linkLocalMethod;
    camera.networkInterface = own;
    camera.isInSubnet = ((ip(address) ^ own.address) & own.mask) == 0;
    return camera;
}

const InterfaceAddress card = networkInterface("10.77.1.1", 24);
const SeenCamera stray = seenCamera("192.168.99.5", 1, card);

AddressSurroundings surroundings()
{
    AddressSurroundings result;
    result.own = {card, networkInterface("10.77.2.7", 24, 3), networkInterface("10.77.1.129", 25, 4)};
    result.cameras = {stray, seenCamera("10.77.1.5", 2, card)};
    result.neighbours = {{ip("10.77.1.9"), {2, 0, 0, 0, 0, 9}, "card2"},
        {ip("10.77.1.8"), {2, 0, 0, 0, 0, 1}, "card2"}, {ip("10.77.1.7"), {2, 0, 0, 0, 0, 9}, "card3"}};
    return result;
}

AddressPlan plan(AddressChoice choice, const SeenCamera &camera, const char *address,
    ControlState control = ControlState::Free)
{
    CameraAddress read;
    read.seen = camera;
    read.control = control;
    return planAddress(choice, read, parseWrittenAddress(address).value(), 0, surroundings());
}

} // namespace

TEST(AddressText, onlyWholeAddressesAreParsed)
{
    for (const char *text : {"", "10.1.1", "10.1.1.1.1", "10.1.1.256", "10.1.1.-1", "10.1.1.1 ", " 10.1.1.1",
             "10..1.1", "a.1.1.1", "10.1.1.1/", "10.1.1.1/33", "10.1.1.1/a", "10.1.1.1/24/1"})
        EXPECT_FALSE(parseWrittenAddress(text)) << text;
    const auto written = parseWrittenAddress("192.168.1.7/24");
    ASSERT_TRUE(written);
    EXPECT_EQ(addressText(written->address, maskOfPrefix(*written->prefix)), "192.168.1.7/24");
    EXPECT_FALSE(parseWrittenAddress("0.0.0.0")->prefix);
    EXPECT_EQ(addressText(ip("10.1.1.1"), 0xFF00FF00), "10.1.1.1/255.0.255.0");
    EXPECT_EQ(prefixOfMask(maskOfPrefix(0)), 0U);
    EXPECT_EQ(prefixOfMask(maskOfPrefix(32)), 32U);
}

TEST(AddressRules, whatCannotWorkIsRefusedWithItsReason)
{
    struct Case
    {
        const char *address;
        unsigned prefix;
        const char *gateway;
        const char *reason; // A part of the text; empty if the address can be used.
    };
    const Case cases[] = {{"10.77.1.20", 24, "0.0.0.0", ""}, {"10.77.1.20", 24, "10.77.1.254", ""},
        {"10.77.1.20", 16, "0.0.0.0", ""},
        {"10.77.1.7", 24, "0.0.0.0", ""}, // The neighbour is on another card.
        {"10.77.1.8", 24, "0.0.0.0", ""}, // The neighbour is the camera itself.
        {"0.0.0.7", 24, "0.0.0.0", "no device"}, {"127.0.0.2", 24, "0.0.0.0", "loopback"},
        {"224.0.0.1", 24, "0.0.0.0", "multicast"}, {"255.255.255.255", 24, "0.0.0.0", "reserved"},
        {"10.77.1.20", 31, "0.0.0.0", "no room"}, {"10.77.1.20", 0, "0.0.0.0", "no room"},
        {"10.77.2.20", 24, "0.0.0.0", "10.77.1.1 to 10.77.1.254"},
        {"10.77.1.20", 30, "0.0.0.0", "prefix /24"}, {"10.77.1.0", 16, "0.0.0.0", "subnet itself"},
        {"10.77.1.255", 24, "0.0.0.0", "broadcast"}, {"10.77.1.1", 24, "0.0.0.0", "this machine (card2)"},
        {"10.77.1.129", 24, "0.0.0.0", "this machine (card4)"},
        {"10.77.1.5", 24, "0.0.0.0", "02:00:00:00:00:02"}, {"10.77.1.9", 24, "0.0.0.0", "02:00:00:00:00:09"},
        {"10.77.1.20", 24, "10.77.2.1", "gateway"}, {"10.77.1.20", 24, "10.77.1.20", "gateway"},
        {"10.77.1.20", 24, "10.77.1.255", "gateway"}};
    for (const Case &entry : cases) {
        const AddressSettings settings{ip(entry.address), maskOfPrefix(entry.prefix), ip(entry.gateway)};
        const std::string reason = whyUnusable(stray, settings, surroundings()).value_or(std::string());
        EXPECT_EQ(reason.empty(), *entry.reason == '\0') << entry.address << ": " << reason;
        EXPECT_NE(reason.find(entry.reason), std::string::npos) << entry.address << ": " << reason;
    }
}

TEST(AddressProposal, firstFreeAddressAfterTheOneOfTheInterfaceIsProposed)
{
    const std::set<std::uint32_t> silent{ip("10.77.1.4"), ip("10.77.1.1")};
    std::vector<std::uint32_t> asked;
    const auto ask = [&](const InterfaceAddress &, const std::vector<std::uint32_t> &addresses) {
        std::vector<Neighbour> neighbours;
        for (const std::uint32_t address : addresses) {
            asked.push_back(address);
            if (silent.count(address) == 0)
                neighbours.push_back({address, {2, 0, 0, 0, 0, 9}, "card2"});
        }
        return neighbours;
    };
    const auto proposal = proposeAddress(stray, surroundings(), ask);
    ASSERT_TRUE(proposal);
    EXPECT_EQ(addressText(proposal->address, proposal->mask), "10.77.1.4/24");
    for (const char *known : {"10.77.1.1", "10.77.1.5", "10.77.1.9"})
        EXPECT_EQ(std::count(asked.begin(), asked.end(), ip(known)), 0) << known;
}

TEST(AddressProposal, everySubnetIsSearchedAtMostOnce)
{
    const AddressQuestion nobody = [](const InterfaceAddress &, const std::vector<std::uint32_t> &) {
        return std::vector<Neighbour>();
    };
    const std::tuple<const char *, unsigned, const char *> cases[] = {{"10.1.1.254", 24, "10.1.1.1"},
        {"10.1.1.1", 30, "10.1.1.2"}, {"10.1.1.2", 30, "10.1.1.1"}, {"10.1.1.1", 32, "none"},
        {"10.255.255.254", 8, "10.0.0.1"}, {"169.254.254.255", 16, "169.254.1.0"}};
    for (const auto &[own, prefix, expected] : cases) {
        AddressSurroundings around;
        around.own = {networkInterface(own, prefix)};
        const auto proposal
            = proposeAddress(seenCamera("192.168.99.5", 1, around.own.front()), around, nobody);
        EXPECT_EQ(proposal ? ipv4ToString(proposal->address) : "none", expected) << own << '/' << prefix;
    }
    // A network in which every address answers.
    const auto everybody = [](const InterfaceAddress &, const std::vector<std::uint32_t> &addresses) {
        std::vector<Neighbour> neighbours;
        for (const std::uint32_t address : addresses)
            neighbours.push_back({address, {2, 0, 0, 0, 0, 9}, "card2"});
        return neighbours;
    };
    EXPECT_FALSE(proposeAddress(stray, surroundings(), everybody));
}

TEST(AddressPlan, obstaclesAreFoundBeforeAnythingIsSent)
{
    SeenCamera simulated = stray, simple = stray, fixed = stray;
    simulated.camera.mac = {};
    simple.offeredMethods = linkLocalMethod;
    fixed.enabledMethods = persistentAddressMethod;
    const SeenCamera near = seenCamera("10.77.1.5", 2, card);
    const std::tuple<AddressPlan, const char *> cases[]
        = {{plan(AddressChoice::Temporary, stray, "10.77.1.20"), ""},
            {plan(AddressChoice::Lasting, stray, "10.77.1.20"), ""},
            {plan(AddressChoice::Automatic, stray, "0.0.0.0"), ""},
            {plan(AddressChoice::Temporary, simulated, "10.77.1.20"), "no MAC address"},
            {plan(AddressChoice::Lasting, simple, "10.77.1.20"), "cannot store"},
            {plan(AddressChoice::Automatic, fixed, "0.0.0.0"), "temporary address first"},
            {plan(AddressChoice::Temporary, stray, "10.77.2.20"), "not in the subnet"},
            {plan(AddressChoice::Temporary, near, "10.77.1.20", ControlState::Controlled), "Another program"},
            {plan(AddressChoice::Automatic, near, "0.0.0.0", ControlState::Exclusive), "Another program"}};
    for (const auto &[made, obstacle] : cases) {
        EXPECT_EQ(made.obstacle.empty(), *obstacle == '\0') << made.obstacle;
        EXPECT_NE(made.obstacle.find(obstacle), std::string::npos) << made.obstacle;
        EXPECT_EQ(made.isInUse, std::string(obstacle) == "Another program");
    }
    const AddressSettings expected{ip("10.77.1.20"), maskOfPrefix(24), 0};
    EXPECT_TRUE(std::get<0>(cases[0]).settings == expected) << "the mask of the network interface";
    EXPECT_EQ(plan(AddressChoice::Temporary, stray, "10.77.1.20/16").settings.mask, maskOfPrefix(16));
}

TEST(CameraAddress, originFollowsFromTheMethodsAndTheAddress)
{
    constexpr std::uint32_t all = persistentAddressMethod | dhcpMethod | linkLocalMethod;
    struct Case
    {
        const char *address;
        std::uint32_t enabled;
        const char *stored; // Empty if it cannot be read.
        AddressOrigin expected;
    };
    const Case cases[] = {{"10.1.1.5", all, "10.1.1.5", AddressOrigin::Persistent},
        {"10.1.1.5", all, "", AddressOrigin::Unknown},
        {"10.1.1.5", all, "10.1.1.6", AddressOrigin::Temporary},
        {"10.1.1.5", dhcpMethod, "10.1.1.5", AddressOrigin::Dhcp},
        {"169.254.7.1", dhcpMethod | linkLocalMethod, "", AddressOrigin::LinkLocal},
        {"10.1.1.5", linkLocalMethod, "", AddressOrigin::Temporary}};
    for (const Case &entry : cases) {
        SeenCamera camera = seenCamera(entry.address, 1, card);
        camera.enabledMethods = entry.enabled;
        std::optional<AddressSettings> stored;
        if (*entry.stored != '\0')
            stored = AddressSettings{ip(entry.stored), maskOfPrefix(24), 0};
        EXPECT_EQ(originText(originOf(camera, stored)), std::string(originText(entry.expected)))
            << entry.address << ' ' << entry.enabled;
    }
    EXPECT_EQ(methodsText(all), "persistent, DHCP, link-local");
    EXPECT_EQ(methodsText(8), "none");
}

TEST(NeighbourTable, devicesThatHaveAnsweredAreRead)
{
    const auto neighbours
        = parseNeighbours("IP address       HW type     Flags       HW address            Mask     Device\n"
                          "10.77.1.9        0x1         0x2         02:00:00:00:00:0a     *        card1\n"
                          "10.77.1.10       0x1         0x0         00:00:00:00:00:00     *        card1\n"
                          "10.77.1          0x1         0x2         02:00:00:00:00:0b     *        card1\n"
                          "10.77.1.11       0x1         0x2         nonsense              *        card1\n"
                          "10.77.1.12       0x1\n"
                          "10.77.1.13       0x1         0x6         02:00:00:00:00:0d     *        card2\n");
    ASSERT_EQ(neighbours.size(), 2U);
    EXPECT_EQ(ipv4ToString(neighbours[0].address), "10.77.1.9");
    EXPECT_EQ(macToString(neighbours[0].mac), "02:00:00:00:00:0a");
    EXPECT_EQ(neighbours[1].networkInterface, "card2");
    EXPECT_TRUE(parseNeighbours("").empty());
}
