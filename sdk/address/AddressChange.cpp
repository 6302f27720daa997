#include "sdk/address/AddressChange.h"

#include "sdk/address/ForcedAddress.h"
#include "sdk/gvcp/ControlConnection.h"

#include <algorithm>
#include <system_error>

namespace {

/// The control over a camera, which the destructor gives back.
class CameraControl
{
public:
    CameraControl(const InterfaceAddress &networkInterface, std::uint32_t camera)
        : m_connection(networkInterface.address, camera),
          m_answer(m_connection.writeRegister(AddressRegister::controlPrivilege, controlPrivilege))
    { }
    ~CameraControl()
    {
        if (!m_answer || hasControl()) // Perhaps only the answer was lost.
            m_connection.writeRegister(AddressRegister::controlPrivilege, 0);
    }
    CameraControl(const CameraControl &) = delete;
    CameraControl &operator=(const CameraControl &) = delete;

    bool hasControl() const { return m_answer && m_answer->isSuccess(); }

    /// Returns the camera's answer to the request for control.
    const std::optional<ControlAnswer> &answer() const { return m_answer; }

    ControlConnection &connection() { return m_connection; }

private:
    static constexpr std::uint32_t controlPrivilege = 2;

    ControlConnection m_connection;
    const std::optional<ControlAnswer> m_answer;
};

/// Returns how a change has ended that the camera has answered with a failure or not at all.
AddressChange failed(const std::string &what, const std::optional<std::uint16_t> &status)
{
    if (!status)
        return {ChangeResult::NoAnswer, what + ": the camera does not answer.", {}};
    const bool isInUse = *status == ControlAnswer::accessDenied;
    return {
        isInUse ? ChangeResult::InUse : ChangeResult::Refused, what + ": " + statusText(*status) + '.', {}};
}

std::optional<std::uint16_t> statusOf(const std::optional<ControlAnswer> &answer)
{
    return answer ? std::optional(answer->status) : std::nullopt;
}

struct RegisterValue
{
    std::uint32_t address;
    std::uint32_t value;
};

/// Writes registers of a camera under control, in their order. Returns the failure, if any.
std::optional<AddressChange> writeRegisters(
    const SeenCamera &camera, const std::vector<RegisterValue> &values)
{
    CameraControl control(camera.networkInterface, camera.camera.address);
    if (!control.hasControl())
        return failed("The camera cannot be controlled", statusOf(control.answer()));
    for (const RegisterValue &entry : values) {
        const auto answer = control.connection().writeRegister(entry.address, entry.value);
        if (!answer || !answer->isSuccess())
            return failed("The camera does not store the address", statusOf(answer));
    }
    const bool isStored = std::all_of(values.begin(), values.end(), [&](const RegisterValue &entry) {
        return control.connection().readRegister(entry.address) == entry.value;
    });
    if (!isStored)
        return AddressChange{
            ChangeResult::Refused, "The camera has accepted the settings, but has not stored them.", {}};
    return std::nullopt;
}

/// Returns how a command for another address has ended that has had no visible effect.
AddressChange withoutEffect(const std::optional<SeenCamera> &camera)
{
    if (!camera)
        return {ChangeResult::NoAnswer,
            "The camera has not answered within 5 s. It may need longer; ask for its address again, or "
            "switch "
            "it off and on.",
            {}};
    return {ChangeResult::Refused,
        "The camera keeps the address " + ipv4ToString(camera->camera.address)
            + ". Another program may control it, or a DHCP server may have assigned this address.",
        camera};
}

AddressChange setTemporary(const SeenCamera &camera, const AddressSettings &settings)
{
    const auto status = forceAddress(camera, settings);
    if (status && *status != ControlAnswer::success)
        return failed("The camera does not take the address", status);
    const auto isThere = [&](const SeenCamera &seen) {
        const AddressSettings now{seen.camera.address, seen.camera.mask, seen.camera.gateway};
        return now == settings && seen.isInSubnet;
    };
    const auto seen = awaitCamera(camera.camera.mac, isThere);
    if (!seen || !isThere(*seen))
        return withoutEffect(seen);
    return {ChangeResult::Done, "The camera answers at " + ipv4ToString(settings.address) + '.', seen};
}

/// Sets the address temporarily, which also proves that it works, and then stores it.
AddressChange setLasting(const SeenCamera &camera, const AddressSettings &settings)
{
    const CameraData &data = camera.camera;
    const AddressSettings present{data.address, data.mask, data.gateway};
    AddressChange change{
        ChangeResult::Done, "The camera answers at " + ipv4ToString(data.address) + '.', camera};
    if (!(present == settings) || !camera.isInSubnet)
        change = setTemporary(camera, settings);
    if (change.result != ChangeResult::Done)
        return change;
    auto failure = writeRegisters(*change.camera,
        {{AddressRegister::persistentAddress, settings.address},
            {AddressRegister::persistentMask, settings.mask},
            {AddressRegister::persistentGateway, settings.gateway},
            {AddressRegister::enabledMethods, change.camera->enabledMethods | persistentAddressMethod}});
    if (failure) {
        failure->text
            += " It has the address " + ipv4ToString(settings.address) + " until it is switched off.";
        failure->camera = change.camera;
        return *failure;
    }
    change.text = "The camera answers at " + ipv4ToString(settings.address) + " and has stored the address.";
    return change;
}

AddressChange setAutomatic(const SeenCamera &camera)
{
    if ((camera.enabledMethods & persistentAddressMethod) != 0) {
        const std::uint32_t methods = (camera.enabledMethods & ~persistentAddressMethod)
            | (camera.offeredMethods & (dhcpMethod | linkLocalMethod));
        if (auto failure = writeRegisters(camera, {{AddressRegister::enabledMethods, methods}}))
            return *failure;
    }
    const auto status = forceAddress(camera, {});
    if (status && *status != ControlAnswer::success)
        return failed("The camera does not give up its address", status);
    const auto seen = awaitCamera(camera.camera.mac,
        [&](const SeenCamera &now) { return now.camera.address != camera.camera.address; });
    if (!seen)
        return withoutEffect(seen);
    const bool isSame = seen->camera.address == camera.camera.address;
    return {ChangeResult::Done,
        "The camera " + std::string(isSame ? "still answers" : "answers") + " at "
            + ipv4ToString(seen->camera.address) + '.',
        seen};
}

AddressChange make(const AddressPlan &plan)
{
    switch (plan.choice) {
    case AddressChoice::Temporary:
        return setTemporary(plan.camera.seen, plan.settings);
    case AddressChoice::Lasting:
        return setLasting(plan.camera.seen, plan.settings);
    case AddressChoice::Automatic:
        return setAutomatic(plan.camera.seen);
    }
    return {};
}

} // namespace

AddressChange changeAddress(const AddressPlan &plan)
{
    try {
        return make(plan);
    } catch (const std::system_error &error) {
        return {ChangeResult::Failed, "The command cannot be sent: " + error.code().message() + '.', {}};
    }
}
