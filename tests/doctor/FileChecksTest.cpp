// These tests provoke the findings about the network interfaces, the kernel's settings, firewalls and USB,
// with made-up files.

#include "sdk/doctor/KernelChecks.h"
#include "sdk/doctor/NetworkChecks.h"
#include "sdk/doctor/UsbChecks.h"
#include "tests/doctor/MachineBuilder.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace {

/// Takes the administrator's right to open every file away, until the end of the block.
class WithoutPrivilege
{
public:
    WithoutPrivilege() : m_isPrivileged(geteuid() == 0) { EXPECT_EQ(m_isPrivileged ? seteuid(65534) : 0, 0); }
    ~WithoutPrivilege() { EXPECT_EQ(m_isPrivileged ? seteuid(0) : 0, 0); }
    WithoutPrivilege(const WithoutPrivilege &) = delete;
    WithoutPrivilege &operator=(const WithoutPrivilege &) = delete;

private:
    const bool m_isPrivileged;
};

/// Adds a USB device with one interface to /sys, and its node to /dev.
void addUsbDevice(MachineBuilder &builder, const std::string &name, int number, const std::string &speed,
    const std::string &subclass = "05")
{
    const std::string directory = "/sys/bus/usb/devices/" + name;
    builder.file(directory + "/busnum", "2\n").file(directory + "/devnum", std::to_string(number) + '\n');
    builder.file(directory + "/product", name + "\x1B camera\n").file(directory + "/speed", speed + '\n');
    builder.file(directory + ":1.0/bInterfaceClass", "ef\n")
        .file(directory + ":1.0/bInterfaceSubClass", subclass + '\n');
    builder.file(directory + ":1.1/bInterfaceClass", "ef\n")
        .file(directory + ":1.1/bInterfaceSubClass", subclass + '\n');
    builder.file("/dev/bus/usb/002/00" + std::to_string(number), "");
}

} // namespace

TEST(NetworkChecks, everyWiredInterfaceHasAFinding)
{
    MachineBuilder builder;
    builder.link("eth0", "1").link("eth1", "1").link("eth2", "1", "100").link("eth3", "0").link("eth4", "");
    builder.link("eth5", "1", "1000")
        .link("eth6", "1", "100")
        .link("wlan0", "1")
        .link("port0", "1")
        .link("eth7", "1", "-1");
    builder.file("/sys/class/net/wlan0/wireless/link", "").file("/sys/class/net/port0/master/type", "1");
    builder.file("/sys/class/net/lo/type", "772\n").file("/sys/class/net/veth0/type", "1\n");
    builder.address("eth0", "10.0.0.1", 24).address("eth2", "10.0.2.1", 24).address("eth7", "10.0.7.1", 24);
    builder.address("eth5", "10.0.5.1", 24)
        .camera("10.0.5.2", 1)
        .address("eth6", "10.0.6.1", 24)
        .camera("10.0.6.2", 2);
    builder.machine.links = readNetworkLinks(builder.machine.files);
    const Findings findings = checkLinks(builder.machine);
    EXPECT_TRUE(matchAll(findings,
        {{Severity::Ok, "eth0", "is connected and has an address", ""},
            {Severity::Warning, "eth1", "no IPv4 address", "sudo ip address add 169.254.10.1/16 dev eth1"},
            {Severity::Notice, "eth2", "100 Mbit/s", "ethtool eth2"},
            {Severity::Notice, "eth3", "no connection", ""},
            {Severity::Notice, "eth4", "switched off", "sudo ip link set eth4 up"},
            {Severity::Notice, "eth5", "MTU of eth5 is 1500", "sudo ip link set eth5 mtu 9000"},
            {Severity::Warning, "eth6", "100 Mbit/s", "ethtool eth6"},
            {Severity::Notice, "eth6", "MTU", "mtu 9000"}, {Severity::Ok, "eth7", "is connected", ""}}))
        << describe(findings);
}

TEST(NetworkChecks, interfacesWithoutAddressGetSubnetsOfTheirOwn)
{
    MachineBuilder builder;
    for (const char *name : {"eth0", "eth1", "eth2"})
        builder.machine.links.push_back({name, true, true, 9000, 1000});
    const auto hasAdvice = [&](std::size_t index, const char *address) {
        return checkLinks(builder.machine)[index].command.find(address) != std::string::npos;
    };
    EXPECT_TRUE(hasAdvice(0, "169.254.10.1/16"));
    EXPECT_TRUE(hasAdvice(1, "192.168.100.1/24"));
    EXPECT_TRUE(hasAdvice(2, "192.168.101.1/24"));
    builder.address("eth1", "169.254.3.4", 16);
    EXPECT_TRUE(hasAdvice(0, "192.168.100.1/24"));
    EXPECT_TRUE(hasAdvice(2, "192.168.101.1/24"));
}

TEST(NetworkChecks, interfacesInOneSubnetAreReported)
{
    MachineBuilder builder;
    builder.address("eth0", "10.0.0.1", 24).address("eth1", "10.0.1.1", 24).address("eth2", "10.0.0.200", 25);
    EXPECT_TRUE(matchAll(checkSubnets(builder.machine),
        {{Severity::Warning, "eth2", "eth0 (10.0.0.1/24) and eth2 (10.0.0.200/25) are in the same subnet",
            "ip -brief -4 address"}}))
        << describe(checkSubnets(builder.machine));
    builder.machine.addresses.back().index = builder.machine.addresses.front().index;
    EXPECT_TRUE(checkSubnets(builder.machine).empty());
}

TEST(NetworkChecks, packetSizeIsJudgedIfTheInterfaceIsCertain)
{
    MachineBuilder builder;
    const auto check = [&](std::int64_t size) { return checkPacketSize(builder.machine, "Net 1", size); };
    builder.address("eth1", "10.0.1.1", 24);
    builder.machine.links = {{"eth0", true, true, 1500, 1000}, {"eth1", true, true, 9000, 1000}};
    EXPECT_TRUE(check(1500).empty()) << "no interface has cameras";
    builder.camera("10.0.1.2", 1);
    EXPECT_TRUE(matchAll(check(1500),
        {{Severity::Notice, "Net 1", "MTU of eth1 is 9000", "cvxctl set 'Net 1' GevSCPSPacketSize=9000"}}));
    EXPECT_TRUE(check(8000).empty());
    EXPECT_TRUE(matchAll(check(9500), {{Severity::Warning, "Net 1", "MTU of eth1", "PacketSize=9000"}}));
    builder.address("eth0", "10.0.0.1", 24).camera("10.0.0.2", 2);
    EXPECT_TRUE(check(9500).empty()) << "the camera may be at either interface";
}

TEST(KernelChecks, smallReceiveBufferMattersForGigECameras)
{
    MachineBuilder builder;
    builder.address("eth0", "10.0.0.1", 24);
    const auto check = [&] { return checkReceiveBuffer(builder.machine); };
    EXPECT_TRUE(matchAll(check(), {{Severity::Notice, "net.core.rmem_max", "cannot be read", ""}}));
    builder.file("/proc/sys/net/core/rmem_max", "212992\n");
    EXPECT_TRUE(matchAll(
        check(), {{Severity::Notice, "net.core.rmem_max", "208 KiB", "net.core.rmem_max=33554432"}}));
    builder.camera("10.0.0.2", 1);
    EXPECT_TRUE(matchAll(check(), {{Severity::Warning, "net.core.rmem_max", "208 KiB", "sysctl"}}));
    builder.file("/proc/sys/net/core/rmem_max", "33554432\n");
    EXPECT_TRUE(matchAll(check(), {{Severity::Ok, "net.core.rmem_max", "32768 KiB", ""}}));
}

TEST(KernelChecks, largerReversePathFilterCounts)
{
    const std::string noRoute = "Iface\tDestination\tGateway\neth0\t0000000A\t00000000\n";
    const std::string route = noRoute + "eth0\t00000000\t0100000A\n";
    const ExpectedFinding ok{Severity::Ok, "rp_filter", "no answers", ""};
    const ExpectedFinding strict{Severity::Warning, "eth0", "is strict", "net/ipv4/conf/eth0/rp_filter=0"};
    const ExpectedFinding loose{
        Severity::Notice, "eth0", "no default route", "net/ipv4/conf/all/rp_filter=0"};
    const std::tuple<const char *, const char *, std::string, ExpectedFinding> cases[]
        = {{"0", "0", noRoute, ok}, {"0", "1", route, strict}, {"1", "0", route, strict},
            {"2", "1", route, ok}, {"2", "1", noRoute, loose}};
    for (const auto &[all, own, routes, expected] : cases) {
        MachineBuilder builder;
        builder.address("lo", "127.0.0.1", 8).address("eth0", "10.0.0.1", 24);
        builder.file("/proc/sys/net/ipv4/conf/all/rp_filter", all).file("/proc/net/route", routes);
        builder.file("/proc/sys/net/ipv4/conf/eth0/rp_filter", own)
            .file("/proc/sys/net/ipv4/conf/lo/rp_filter", "1");
        const Findings findings = checkReversePathFilter(builder.machine);
        EXPECT_TRUE(matchAll(findings, {expected})) << all << own << describe(findings);
    }
}

TEST(KernelChecks, firewallIsFoundAsFarAsItCanBeRead)
{
    using Files = std::vector<std::pair<const char *, const char *>>;
    const std::pair<Files, ExpectedFinding> cases[]
        = {{{{"/proc/modules", "e1000e 300 0 - Live 0x0\nnf_tables 400 0 - Live 0x0\n"},
                {"/etc/ufw/ufw.conf", "ENABLED=no\n"}},
               {Severity::Ok, "firewall", "No firewall", ""}},
            {{{"/proc/modules", "nf_tables 400 12 - Live 0x0\n"}},
                {Severity::Notice, "firewall", "only the administrator can read", "sudo nft list ruleset"}},
            {{{"/etc/ufw/ufw.conf", "# ufw\nENABLED=yes\nLOGLEVEL=low\n"}},
                {Severity::Warning, "ufw", "switched on",
                    "sudo ufw allow in on eth0 proto udp from any port 3956"}},
            {{{"/etc/ufw/ufw.conf", "ENABLED=yes\n"}, {"/etc/ufw/user.rules/unreadable", ""}},
                {Severity::Notice, "ufw", "only the administrator can read", "sudo ufw status"}},
            {{{"/etc/ufw/ufw.conf", "ENABLED=yes\n"},
                 {"/etc/ufw/user.rules", "-A in -p udp --sport 3956 -j ACCEPT\n"}},
                {Severity::Ok, "firewall", "No firewall", ""}},
            {{{"/proc/77/comm", "firewalld\n"}, {"/proc/self/comm", "firewalld\n"}},
                {Severity::Warning, "firewalld", "is running", "--change-interface=eth0"}}};
    for (const auto &[files, expected] : cases) {
        MachineBuilder builder;
        builder.address("lo", "127.0.0.1", 8).address("eth0", "10.0.0.1", 24);
        builder.file("/proc/net/route", "Iface\tDestination\nwan0\t00000000\n");
        for (const char *name : {"eth0", "wan0"})
            builder.machine.links.push_back({name, true, true, 1500, 1000});
        for (const auto &[path, content] : files)
            builder.file(path, content);
        EXPECT_TRUE(matchAll(checkFirewall(builder.machine), {expected}))
            << describe(checkFirewall(builder.machine));
        builder.camera("10.0.0.2", 1);
        EXPECT_LE(checkFirewall(builder.machine).front().severity, Severity::Notice)
            << "a camera has answered";
    }
}

TEST(UsbChecks, everyUsbCameraHasAFinding)
{
    MachineBuilder builder;
    const auto check = [&] { return checkUsb(builder.machine.files); };
    addUsbDevice(builder, "2-9", 9, "480", "01"); // A webcam.
    EXPECT_TRUE(matchAll(check(), {{Severity::Ok, "USB cameras", "No USB3 Vision camera", ""}}))
        << describe(check());
    addUsbDevice(builder, "2-1", 1, "5000");
    addUsbDevice(builder, "2-2", 2, "480");
    addUsbDevice(builder, "2-3", 3, "10000");
    addUsbDevice(builder, "2-4", 4, "5000");
    addUsbDevice(builder, "2-5", 5, "5000");
    addUsbDevice(builder, "2-6", 6, "5000");
    std::filesystem::create_symlink(
        "../drivers/usbfs", builder.pathOf("/sys/bus/usb/devices/2-3:1.1/driver"));
    std::filesystem::remove(builder.pathOf("/dev/bus/usb/002/004"));
    std::filesystem::permissions(builder.pathOf("/"), std::filesystem::perms::all);
    for (const char *node : {"1", "2", "3"})
        std::filesystem::permissions(
            builder.pathOf("/dev/bus/usb/002/00" + std::string(node)), std::filesystem::perms(0666));
    std::filesystem::permissions(builder.pathOf("/dev/bus/usb/002/005"), std::filesystem::perms(0444));
    // The file belongs to another group or, if this is not the administrator, its owner has no permission.
    const auto foreign = builder.pathOf("/dev/bus/usb/002/006");
    [[maybe_unused]] const int isChanged = chown(foreign.c_str(), static_cast<uid_t>(-1), 12345);
    std::filesystem::permissions(foreign, std::filesystem::perms(0060));
    const WithoutPrivilege unprivileged;
    EXPECT_TRUE(matchAll(check(),
        {{Severity::Ok, "2-1  camera", "You may open", ""},
            {Severity::Warning, "2-2  camera", "480 Mbit/s", "lsusb"},
            {Severity::Notice, "2-3  camera", "A program uses", "fuser --verbose /dev/bus/usb/002/003"},
            {Severity::Error, "2-4  camera", "/dev/bus/usb/002/004 of the camera is missing", "ls"},
            {Severity::Error, "2-5  camera", "may not open", "60-corvix-usb3-vision.rules"},
            {Severity::Error, "2-6  camera", "may not open", "adduser \"$USER\" plugdev"},
            {Severity::Notice, "usbfs_memory_mb", "cannot be read", ""}}))
        << describe(check());
}

TEST(UsbChecks, memoryLimitMattersForUsbCameras)
{
    const std::pair<const char *, ExpectedFinding> cases[] = {
        {"16\n", {Severity::Warning, "usbfs_memory_mb", "16 MB", "echo 1000 | sudo tee /sys/module/usbcore"}},
        {"1000\n", {Severity::Ok, "usbfs_memory_mb", "1000 MB", ""}},
        {"0\n", {Severity::Ok, "usbfs_memory_mb", "not limited", ""}}};
    for (const auto &[content, expected] : cases) {
        MachineBuilder builder;
        addUsbDevice(builder, "2-1", 1, "5000");
        builder.file("/sys/module/usbcore/parameters/usbfs_memory_mb", content);
        const Findings findings = checkUsb(builder.machine.files);
        EXPECT_TRUE(matches(findings.back(), expected)) << describe(findings);
    }
}
