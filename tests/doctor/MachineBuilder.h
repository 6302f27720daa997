#pragma once

#include "sdk/address/AddressText.h"
#include "sdk/doctor/Finding.h"
#include "sdk/doctor/Machine.h"
#include "tests/sdk/support/TemporaryDirectory.h"

#include <filesystem>
#include <ostream>
#include <string>

/// Compares a finding by severity, subject and parts of its texts.
struct ExpectedFinding
{
    Severity severity;
    const char *subject;
    const char *what; ///< A part of the text.
    const char *command; ///< A part of the command.
};

inline bool matches(const Finding &finding, const ExpectedFinding &expected)
{
    return finding.severity == expected.severity && finding.subject == expected.subject
        && finding.what.find(expected.what) != std::string::npos
        && finding.command.find(expected.command) != std::string::npos;
}

/// Returns the findings as text, for the messages of tests.
inline std::string describe(const Findings &findings)
{
    std::string text;
    for (const Finding &finding : findings)
        text += std::string(severityText(finding.severity)) + '|' + finding.subject + '|' + finding.what + '|'
            + finding.command + '\n';
    return text;
}

/// Returns true if the findings are exactly the expected ones, in this order.
inline bool matchAll(const Findings &findings, const std::vector<ExpectedFinding> &expected)
{
    return findings.size() == expected.size()
        && std::equal(findings.begin(), findings.end(), expected.begin(), matches);
}

/// Builds a machine with made-up files.
class MachineBuilder
{
public:
    MachineBuilder() { machine.files = FileTree(m_directory.path()); }

    /// Writes a file below the made-up root.
    MachineBuilder &file(const std::string &path, const std::string &content)
    {
        std::filesystem::create_directories(pathOf(path).parent_path());
        writeFile(pathOf(path), content);
        return *this;
    }

    /// Adds a wired network interface to /sys.
    MachineBuilder &link(const std::string &name, const std::string &carrier,
        const std::string &speed = "1000", const std::string &mtu = "1500")
    {
        const std::string directory = "/sys/class/net/" + name;
        file(directory + "/type", "1\n").file(directory + "/device/vendor", "0x8086\n");
        file(directory + "/mtu", mtu + '\n').file(directory + "/speed", speed + '\n');
        if (carrier.empty()) // The file of an interface that is down can be opened but not read.
            std::filesystem::create_directories(pathOf(directory + "/carrier"));
        else
            file(directory + "/carrier", carrier + '\n');
        return *this;
    }

    MachineBuilder &address(const char *name, const char *text, unsigned prefix)
    {
        const unsigned index = static_cast<unsigned>(machine.addresses.size()) + 1;
        machine.addresses.push_back({index, name, parseIpv4(text).value(), maskOfPrefix(prefix), true, true});
        return *this;
    }

    /// Adds a camera that is seen at the last address.
    MachineBuilder &camera(const char *text, std::uint8_t mac, ControlState control = ControlState::Free)
    {
        CameraAddress camera;
        camera.control = control;
        SeenCamera &seen = camera.seen;
        seen.networkInterface = machine.addresses.back();
        seen.camera.mac = {2, 0, 0, 0, 0, mac};
        seen.camera.model = "Kx200";
        seen.camera.address = parseIpv4(text).value();
        seen.camera.mask = seen.networkInterface.mask;
        seen.offeredMethods = persistentAddressMethod;
        seen.isInSubnet
            = addressInSubnet(machine.addresses, seen.networkInterface.index, seen.camera.address);
        machine.cameras.push_back(camera);
        return *this;
    }

    std::filesystem::path pathOf(const std::string &path) const { return m_directory.path().string() + path; }

    Machine machine;

private:
    TemporaryDirectory m_directory;
};
