// This file defines the exported C functions that discovery needs. Each function finds the module that its
// handle identifies and calls the list of this module. GenTL.h names the standard that defines what each
// function returns.

#include "sdk/gentl/ListChangeExtension.h"
#include "sdk/producer/DeviceModule.h"
#include "sdk/producer/Guarded.h"
#include "sdk/producer/InfoCommands.h"

#include <algorithm>
#include <chrono>
#include <type_traits>

using namespace GenTL;

namespace {

/// Limits the timeout to a minute, because GENTL_INFINITE and other large values cannot be added to a time.
std::chrono::milliseconds toTimeout(std::uint64_t milliseconds)
{
    constexpr std::uint64_t maxTimeout = 60 * 1000;
    return std::chrono::milliseconds(std::min(milliseconds, maxTimeout));
}

/// Returns the device that is open below the interface, or null.
std::shared_ptr<DeviceModule> openDevice(IF_HANDLE interface, const std::string &deviceId)
{
    const HandleTable &handles = Producer::instance().handles();
    return handles.find<DeviceModule>(handles.child(interface, deviceId));
}

GC_ERROR writeLastError(
    GC_ERROR code, const std::string &message, GC_ERROR *codeOutput, const InfoOutput &messageOutput)
{
    if (const GC_ERROR error = Producer::instance().requireInitialised())
        return error;
    if (!codeOutput || !messageOutput.isComplete())
        return failMissingArgument();
    const GC_ERROR error = messageOutput.writeString(message);
    if (!error)
        *codeOutput = code;
    return error;
}

} // namespace

extern "C" {

GENTL_FUNCTION GCInitLib()
{
    return guarded([] { return Producer::instance().initialise(); });
}

GENTL_FUNCTION GCCloseLib()
{
    return guarded([] { return Producer::instance().close(); });
}

GENTL_FUNCTION GCGetInfo(TL_INFO_CMD iInfoCmd, INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    return guarded([&] { return Producer::instance().info(iInfoCmd, InfoOutput(piType, pBuffer, piSize)); });
}

GENTL_FUNCTION GCGetLastError(GC_ERROR *piErrorCode, char *sErrText, std::size_t *piSize)
{
    return guarded([&] {
        const GC_ERROR code = lastErrorCode();
        const std::string message = lastErrorMessage();
        const GC_ERROR error = writeLastError(code, message, piErrorCode, InfoOutput(sErrText, piSize));
        if (error)
            fail(code, message); // Restores the last error: the consumer may call again with a longer buffer.
        return error;
    });
}

GENTL_FUNCTION TLOpen(TL_HANDLE *phTL)
{
    return guarded([&] { return Producer::instance().openSystem(phTL); });
}

GENTL_FUNCTION TLClose(TL_HANDLE hTL)
{
    return closeHandle<SystemModule>(hTL);
}

GENTL_FUNCTION TLGetInfo(
    TL_HANDLE hTL, TL_INFO_CMD iInfoCmd, INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    return with<SystemModule>(hTL, [&](SystemModule &) {
        return Producer::instance().info(iInfoCmd, InfoOutput(piType, pBuffer, piSize));
    });
}

// The timeout is ignored, because no source waits for interfaces.
GENTL_FUNCTION TLUpdateInterfaceList(TL_HANDLE hTL, bool8_t *pbChanged, std::uint64_t)
{
    return with<SystemModule>(hTL, [&](SystemModule &system) { return system.updateInterfaces(pbChanged); });
}

GENTL_FUNCTION TLGetNumInterfaces(TL_HANDLE hTL, std::uint32_t *piNumIfaces)
{
    return with<SystemModule>(
        hTL, [&](SystemModule &system) { return system.interfaces.count(piNumIfaces); });
}

GENTL_FUNCTION TLGetInterfaceID(TL_HANDLE hTL, std::uint32_t iIndex, char *sID, std::size_t *piSize)
{
    return with<SystemModule>(
        hTL, [&](SystemModule &system) { return system.interfaces.id(iIndex, InfoOutput(sID, piSize)); });
}

GENTL_FUNCTION TLGetInterfaceInfo(TL_HANDLE hTL, const char *sIfaceID, INTERFACE_INFO_CMD iInfoCmd,
    INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    return with<SystemModule>(hTL, [&](SystemModule &system) {
        return system.interfaces.info(
            sIfaceID, iInfoCmd, InfoOutput(piType, pBuffer, piSize), writeInterfaceInfo);
    });
}

GENTL_FUNCTION TLOpenInterface(TL_HANDLE hTL, const char *sIfaceID, IF_HANDLE *phIface)
{
    return guarded([&] {
        HandleTable &handles = Producer::instance().handles();
        const auto system = handles.find<SystemModule>(hTL);
        if (!system)
            return Producer::instance().failHandle(SystemModule::handleName);
        if (!sIfaceID)
            return failMissingArgument();
        return handles.open(hTL, sIfaceID, phIface, [&] {
            return std::make_shared<InterfaceModule>(system, listedRecord(system->interfaces, sIfaceID));
        });
    });
}

GENTL_FUNCTION IFClose(IF_HANDLE hIface)
{
    return closeHandle<InterfaceModule>(hIface);
}

GENTL_FUNCTION IFGetInfo(
    IF_HANDLE hIface, INTERFACE_INFO_CMD iInfoCmd, INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    return with<InterfaceModule>(hIface, [&](InterfaceModule &module) {
        const InfoOutput output(piType, pBuffer, piSize);
        return output.isComplete() ? writeInterfaceInfo(module.record(), iInfoCmd, output)
                                   : failMissingArgument();
    });
}

GENTL_FUNCTION IFUpdateDeviceList(IF_HANDLE hIface, bool8_t *pbChanged, std::uint64_t iTimeout)
{
    return with<InterfaceModule>(hIface,
        [&](InterfaceModule &module) { return module.updateDevices(pbChanged, toTimeout(iTimeout)); });
}

GENTL_FUNCTION IFGetNumDevices(IF_HANDLE hIface, std::uint32_t *piNumDevices)
{
    return with<InterfaceModule>(
        hIface, [&](InterfaceModule &module) { return module.devices.count(piNumDevices); });
}

GENTL_FUNCTION IFGetDeviceID(IF_HANDLE hIface, std::uint32_t iIndex, char *sIDeviceID, std::size_t *piSize)
{
    return with<InterfaceModule>(hIface,
        [&](InterfaceModule &module) { return module.devices.id(iIndex, InfoOutput(sIDeviceID, piSize)); });
}

GENTL_FUNCTION IFGetDeviceInfo(IF_HANDLE hIface, const char *sDeviceID, DEVICE_INFO_CMD iInfoCmd,
    INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    return with<InterfaceModule>(hIface, [&](InterfaceModule &module) {
        const auto write
            = [&](const DeviceRecord &record, DEVICE_INFO_CMD command, const InfoOutput &output) {
                  const auto open = openDevice(hIface, record.id);
                  return open ? open->info(command, output) : writeDeviceInfo(record, command, output);
              };
        return module.devices.info(sDeviceID, iInfoCmd, InfoOutput(piType, pBuffer, piSize), write);
    });
}

GENTL_FUNCTION IFGetParentTL(IF_HANDLE hIface, TL_HANDLE *phSystem)
{
    return with<InterfaceModule>(hIface, [&](InterfaceModule &) {
        return writeHandle(Producer::instance().handles().parent(hIface), phSystem);
    });
}

// This function is not part of GenTL; see ListChangeExtension.h.
__attribute__((visibility("default"))) int CvxListChangedDescriptor()
{
    return Producer::instance().listChangedDescriptor();
}
static_assert(std::is_same_v<decltype(CvxListChangedDescriptor), ListChangedFunction>);

} // extern "C"
