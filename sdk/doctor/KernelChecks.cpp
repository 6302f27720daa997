#include "sdk/doctor/KernelChecks.h"

#include <algorithm>
#include <cctype>
#include <set>
#include <sstream>

namespace {

std::set<std::string> interfaceNames(const Machine &machine)
{
    std::set<std::string> names;
    for (const InterfaceAddress &address : machine.addresses)
        names.insert(address.name);
    names.erase("lo");
    return names;
}

/// Returns the interfaces with a default route, which lead to other networks.
std::set<std::string> defaultRouteInterfaces(const FileTree &files)
{
    std::set<std::string> names;
    std::istringstream lines(files.read("/proc/net/route").value_or(std::string()));
    std::string line;
    std::getline(lines, line); // The names of the columns.
    while (std::getline(lines, line)) {
        std::istringstream columns(line);
        std::string name, destination;
        if (columns >> name >> destination && destination == "00000000")
            names.insert(name);
    }
    return names;
}

/// Returns the network interface of the cameras, as far as it is obvious; else an empty name.
std::string cameraInterface(const Machine &machine)
{
    for (const CameraAddress &camera : machine.cameras) {
        if (camera.seen.networkInterface.name != "lo")
            return camera.seen.networkInterface.name;
    }
    const auto routed = defaultRouteInterfaces(machine.files);
    std::vector<std::string> names;
    for (const NetworkLink &link : machine.links) {
        if (link.hasCarrier && routed.count(link.name) == 0)
            names.push_back(link.name);
    }
    return names.size() == 1 ? names.front() : std::string();
}

/// Returns true if a process of this name runs.
bool isRunning(const FileTree &files, const std::string &program)
{
    const std::vector<std::string> names = files.names("/proc");
    return std::any_of(names.begin(), names.end(), [&](const std::string &name) {
        return std::isdigit(static_cast<unsigned char>(name.front())) != 0
            && files.read("/proc/" + name + "/comm") == program;
    });
}

/// Returns true if the kernel has loaded filter rules. Only the administrator can read the rules.
bool hasFilterRules(const FileTree &files)
{
    static const std::set<std::string> filters{"nf_tables", "iptable_filter", "nft_compat"};
    std::istringstream lines(files.read("/proc/modules").value_or(std::string()));
    std::string line;
    while (std::getline(lines, line)) {
        std::istringstream columns(line);
        std::string name;
        long size = 0, users = 0;
        if (columns >> name >> size >> users && filters.count(name) != 0 && users > 0)
            return true;
    }
    return false;
}

bool isUfwEnabled(const FileTree &files)
{
    const std::string configuration = files.read("/etc/ufw/ufw.conf").value_or(std::string());
    return configuration.find("\nENABLED=yes") != std::string::npos
        || configuration.rfind("ENABLED=yes", 0) == 0;
}

/// Returns what there is to say about ufw; nothing if it permits the answers of cameras, or is switched off.
std::optional<Finding> ufwFinding(const Machine &machine, Severity severity, const std::string &why)
{
    constexpr char rulesPath[] = "/etc/ufw/user.rules";
    if (!isUfwEnabled(machine.files))
        return std::nullopt;
    const auto rules = machine.files.read(rulesPath);
    if (!rules && machine.files.exists(rulesPath))
        return Finding{Severity::Notice, "ufw",
            "The firewall ufw is switched on; only the administrator can read its rules.", why,
            "sudo ufw status"};
    if (rules && rules->find("3956") != std::string::npos)
        return std::nullopt;
    const std::string name = cameraInterface(machine);
    return Finding{severity, "ufw", "The firewall ufw is switched on.", why,
        name.empty() ? "sudo ufw status verbose"
                     : "sudo ufw allow in on " + name + " proto udp from any port 3956"};
}

Finding firewalldFinding(const Machine &machine, Severity severity, const std::string &why)
{
    const std::string name = cameraInterface(machine);
    return {severity, "firewalld", "The firewall firewalld is running.",
        why + " Trust a network interface only if nothing but cameras is connected to it.",
        name.empty() ? "sudo firewall-cmd --list-all-zones"
                     : "sudo firewall-cmd --permanent --zone=trusted --change-interface=" + name
                + " && sudo firewall-cmd --reload"};
}

} // namespace

Findings checkReceiveBuffer(const Machine &machine)
{
    constexpr char path[] = "/proc/sys/net/core/rmem_max";
    constexpr std::int64_t neededSize = 2 << 20; // Holds the packets of several milliseconds.
    const auto size = machine.files.number(path);
    if (!size)
        return {
            {Severity::Notice, "net.core.rmem_max", "The limit of receive buffers cannot be read.", {}, {}}};
    const std::string what = "Receive buffers can have " + std::to_string(*size >> 10) + " KiB.";
    if (*size >= neededSize)
        return {{Severity::Ok, "net.core.rmem_max", what, {}, {}}};
    return {{machine.hasNetworkCamera() ? Severity::Warning : Severity::Notice, "net.core.rmem_max", what,
        "The packets of a GigE camera are lost when the computer is busy for a moment.",
        "echo net.core.rmem_max=33554432 | sudo tee /etc/sysctl.d/60-cameras.conf && sudo sysctl --system"}};
}

Findings checkReversePathFilter(const Machine &machine)
{
    const std::string directory = "/proc/sys/net/ipv4/conf/";
    const auto filterOf = [&](const std::string &name) {
        return machine.files.number(directory + name + "/rp_filter").value_or(0);
    };
    constexpr std::int64_t strict = 1, loose = 2;
    Findings findings;
    const bool isRouted = !defaultRouteInterfaces(machine.files).empty();
    for (const std::string &name : interfaceNames(machine)) {
        const std::int64_t filter = std::max(filterOf("all"), filterOf(name)); // The larger number counts.
        const std::string command
            = "sudo sysctl net/ipv4/conf/all/rp_filter=0 net/ipv4/conf/" + name + "/rp_filter=0";
        if (filter == strict)
            findings.push_back({Severity::Warning, name, "The reverse-path filter of " + name + " is strict.",
                "It drops the answers of cameras in another subnet, so they are not even listed.", command});
        else if (filter == loose && !isRouted)
            findings.push_back({Severity::Notice, name,
                "The reverse-path filter of " + name + " needs a route, and there is no default route.",
                "It drops the answers of cameras in a subnet without a route, so they are not listed.",
                command});
    }
    if (findings.empty())
        findings.push_back({Severity::Ok, "rp_filter", "The reverse-path filter drops no answers.", {}, {}});
    return findings;
}

Findings checkFirewall(const Machine &machine)
{
    const std::string why = "A firewall may not recognise the answers of cameras, which come from UDP port "
                            "3956, and drop them.";
    // A camera that has answered proves that the answers pass.
    const Severity severity = machine.hasNetworkCamera() ? Severity::Notice : Severity::Warning;
    if (auto finding = ufwFinding(machine, severity, why))
        return {*std::move(finding)};
    if (isRunning(machine.files, "firewalld"))
        return {firewalldFinding(machine, severity, why)};
    if (hasFilterRules(machine.files))
        return {{Severity::Notice, "firewall", "There are filter rules that only the administrator can read.",
            why, "sudo nft list ruleset"}};
    return {{Severity::Ok, "firewall", "No firewall was found.", {}, {}}};
}
