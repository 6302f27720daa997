#include "sdk/address/CameraAddress.h"

#include "sdk/address/AddressRules.h"
#include "sdk/gvcp/ControlConnection.h"

#include <system_error>

namespace {

constexpr std::uint32_t exclusiveBit = 1, controlBit = 2;

ControlState controlStateOf(const ControlAnswer &answer)
{
    if (answer.status == ControlAnswer::accessDenied)
        return ControlState::Exclusive;
    if (!answer.isSuccess() || answer.data.size() < sizeof(std::uint32_t))
        return ControlState::Unknown;
    const std::uint32_t privilege = read32(answer.data.data());
    if ((privilege & exclusiveBit) != 0)
        return ControlState::Exclusive;
    return (privilege & controlBit) != 0 ? ControlState::Controlled : ControlState::Free;
}

std::optional<AddressSettings> readPersistent(ControlConnection &connection)
{
    const auto address = connection.readRegister(AddressRegister::persistentAddress);
    if (!address)
        return std::nullopt;
    return AddressSettings{*address, connection.readRegister(AddressRegister::persistentMask).value_or(0),
        connection.readRegister(AddressRegister::persistentGateway).value_or(0)};
}

void readRegisters(CameraAddress &result)
{
    const SeenCamera &seen = result.seen;
    ControlConnection connection(seen.networkInterface.address, seen.camera.address);
    const auto control = connection.requestRegister(AddressRegister::controlPrivilege);
    if (!control) {
        result.problem
            = "The camera answers the search, but no other command. A firewall may drop the answers.";
        return;
    }
    result.control = controlStateOf(*control);
    if (result.control == ControlState::Exclusive)
        result.problem = "Another program controls the camera and permits nobody to read it.";
    else if ((seen.offeredMethods & persistentAddressMethod) != 0)
        result.persistent = readPersistent(connection);
}

} // namespace

CameraAddress readCameraAddress(const SeenCamera &camera)
{
    CameraAddress result;
    result.seen = camera;
    if (!camera.isInSubnet) {
        result.problem = "The camera cannot be read, because its address is not in the subnet of the network "
                         "interface.";
    } else {
        try {
            readRegisters(result);
        } catch (const std::system_error &error) {
            result.problem = "The camera cannot be read: " + error.code().message() + '.';
        }
    }
    result.origin = originOf(camera, result.persistent);
    return result;
}

AddressOrigin originOf(const SeenCamera &camera, const std::optional<AddressSettings> &persistent)
{
    const std::uint32_t methods = camera.enabledMethods;
    const bool isPersistentEnabled = (methods & persistentAddressMethod) != 0;
    const bool isReported = camera.offeredMethods != 0 || methods != 0;
    if (!isReported || (isPersistentEnabled && !persistent))
        return AddressOrigin::Unknown;
    if (isPersistentEnabled && persistent->address == camera.camera.address)
        return AddressOrigin::Persistent;
    if (isLinkLocal(camera.camera.address))
        return AddressOrigin::LinkLocal;
    return (methods & dhcpMethod) != 0 && !isPersistentEnabled ? AddressOrigin::Dhcp
                                                               : AddressOrigin::Temporary;
}

const char *originText(AddressOrigin origin)
{
    static constexpr const char *texts[]
        = {"unknown", "persistent", "DHCP server, or temporary", "link-local", "temporary"};
    return texts[static_cast<std::size_t>(origin)];
}

std::string methodsText(std::uint32_t methods)
{
    static constexpr std::pair<std::uint32_t, const char *> names[]
        = {{persistentAddressMethod, "persistent"}, {dhcpMethod, "DHCP"}, {linkLocalMethod, "link-local"}};
    std::string text;
    for (const auto &[bit, name] : names) {
        if ((methods & bit) != 0)
            text += (text.empty() ? "" : ", ") + std::string(name);
    }
    return text.empty() ? "none" : text;
}
