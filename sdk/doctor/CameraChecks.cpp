#include "sdk/doctor/CameraChecks.h"

#include "sdk/address/AddressProposal.h"
#include "sdk/address/AddressText.h"

namespace {

std::string subjectOf(const CameraAddress &camera)
{
    return identityOf(camera.seen.camera);
}

std::string addressOf(const CameraAddress &camera)
{
    return addressText(camera.seen.camera.address, camera.seen.camera.mask);
}

/// Returns the command that works with the address of the camera. Returns nothing if the camera has no MAC
/// address, because its other names may be anything.
std::string addressCommand(const CameraAddress &camera, const std::string &options = {})
{
    const MacAddress &mac = camera.seen.camera.mac;
    return mac == MacAddress{} ? std::string() : "cvxctl address " + macToString(mac) + options;
}

AddressSurroundings surroundingsOf(const Machine &machine)
{
    AddressSurroundings surroundings;
    surroundings.own = machine.addresses;
    surroundings.neighbours = machine.neighbours;
    for (const CameraAddress &camera : machine.cameras)
        surroundings.cameras.push_back(camera.seen);
    return surroundings;
}

/// Returns the command that gives the camera an address in the subnet of its network interface. Adds the
/// address to the surroundings, so that no other camera gets it too.
std::string moveCommand(AddressSurroundings &surroundings, const CameraAddress &camera)
{
    const auto known = [neighbours = surroundings.neighbours](const InterfaceAddress &,
                           const std::vector<std::uint32_t> &) { return neighbours; };
    const bool canStore = (camera.seen.offeredMethods & persistentAddressMethod) != 0;
    const auto proposal = proposeAddress(camera.seen, surroundings, known);
    if (!proposal)
        return {};
    surroundings.neighbours.push_back(
        {proposal->address, camera.seen.camera.mac, camera.seen.networkInterface.name});
    return addressCommand(camera,
        (canStore ? " --lasting " : " --temporary ") + addressText(proposal->address, proposal->mask));
}

Finding wrongSubnet(AddressSurroundings &surroundings, const CameraAddress &camera)
{
    const InterfaceAddress &own = camera.seen.networkInterface;
    return {Severity::Error, subjectOf(camera),
        "The camera " + camera.seen.camera.model + " at " + addressOf(camera) + " is not in the subnet of "
            + own.name + " (" + addressText(own.address, own.mask) + ").",
        "It is listed, but no program can open it.", moveCommand(surroundings, camera)};
}

Finding wrongMask(AddressSurroundings &surroundings, const CameraAddress &camera)
{
    const InterfaceAddress &own = camera.seen.networkInterface;
    return {Severity::Error, subjectOf(camera),
        "The subnet of the camera at " + addressOf(camera) + " does not contain " + own.name + " ("
            + addressText(own.address, own.mask) + ").",
        "The camera may not be able to send its answers and images.", moveCommand(surroundings, camera)};
}

/// Returns what there is to say about a camera that is in the subnet of its network interface.
Finding controlFinding(const CameraAddress &camera)
{
    const std::string subject = subjectOf(camera);
    switch (camera.control) {
    case ControlState::Controlled:
    case ControlState::Exclusive:
        return {Severity::Notice, subject, "Another program uses the camera at " + addressOf(camera) + '.',
            "A camera has one user at a time; the program may run on another computer.",
            addressCommand(camera)};
    case ControlState::Unknown:
        return {Severity::Warning, subject,
            "The camera at " + addressOf(camera) + " answers the search, but no other command.",
            "A firewall or a second device with the same address is the usual reason.",
            addressCommand(camera)};
    case ControlState::Free:
        break;
    }
    return {Severity::Ok, subject,
        "The camera " + camera.seen.camera.model + " at " + addressOf(camera) + " can be opened.", {}, {}};
}

bool isInCameraSubnet(const CameraAddress &camera)
{
    const CameraData &data = camera.seen.camera;
    return ((data.address ^ camera.seen.networkInterface.address) & data.mask) == 0;
}

Finding conflict(const CameraAddress &camera, const std::string &other)
{
    return {Severity::Error, subjectOf(camera),
        ipv4ToString(camera.seen.camera.address) + " is the address of the camera and of " + other + '.',
        "Commands and images go to either of them.", addressCommand(camera, " --propose")};
}

} // namespace

Findings checkCameras(const Machine &machine)
{
    Findings findings;
    AddressSurroundings surroundings = surroundingsOf(machine);
    for (const CameraAddress &camera : machine.cameras) {
        if (!camera.seen.isInSubnet)
            findings.push_back(wrongSubnet(surroundings, camera));
        else if (!isInCameraSubnet(camera) && camera.seen.networkInterface.peer == 0)
            findings.push_back(wrongMask(surroundings, camera));
        else
            findings.push_back(controlFinding(camera));
    }
    if (findings.empty())
        findings.push_back({Severity::Ok, "GigE cameras", "No GigE camera has answered.", {}, {}});
    return findings;
}

Findings checkConflicts(const Machine &machine)
{
    Findings findings;
    for (std::size_t index = 0; index < machine.cameras.size(); ++index) {
        const CameraAddress &camera = machine.cameras[index];
        const CameraData &data = camera.seen.camera;
        const std::string &name = camera.seen.networkInterface.name;
        for (std::size_t other = index + 1; other < machine.cameras.size(); ++other) {
            if (machine.cameras[other].seen.camera.address == data.address)
                findings.push_back(conflict(camera, "the camera " + subjectOf(machine.cameras[other])));
        }
        for (const InterfaceAddress &own : machine.addresses) {
            if (own.address == data.address && own.name != "lo")
                findings.push_back(conflict(camera, "this machine (" + own.name + ')'));
        }
        for (const Neighbour &neighbour : machine.neighbours) {
            const bool isOther = neighbour.mac != data.mac && data.mac != MacAddress{};
            if (neighbour.address == data.address && neighbour.networkInterface == name && isOther)
                findings.push_back(conflict(camera, "another device (" + macToString(neighbour.mac) + ')'));
        }
    }
    return findings;
}
