// This file defines the exported C functions that discovery needs. Each function finds the module that its
// handle identifies and calls the list of this module. The functions that open or close a module call the
// Producer. GenTL.h names the standard that defines what each function returns.

#include "sdk/gentl/ListChangeExtension.h"
#include "sdk/producer/InfoCommands.h"
#include "sdk/producer/LastError.h"
#include "sdk/producer/Producer.h"

#include <algorithm>
#include <chrono>
#include <exception>
#include <new>
#include <type_traits>

using namespace GenTL;

namespace {

/// Runs the body of an exported function. Converts every exception to an error code, because the consumer may
/// be written in C.
template <typename Body>
GC_ERROR guarded(Body &&body) noexcept
{
    try {
        return body();
    } catch (const std::bad_alloc &) {
        return fail(GC_ERR_OUT_OF_MEMORY, "Out of memory.");
    } catch (const std::exception &exception) {
        return fail(GC_ERR_ERROR, exception.what());
    } catch (...) {
        return fail(GC_ERR_ERROR, "Unknown exception.");
    }
}

/// Runs the body with the system module that the handle identifies.
template <typename Body>
GC_ERROR withSystem(TL_HANDLE handle, Body &&body) noexcept
{
    return guarded([&] {
        if (const GC_ERROR error = Producer::instance().requireInitialised())
            return error;
        const std::shared_ptr<SystemModule> module = Producer::instance().system(handle);
        return module ? body(*module)
                      : fail(GC_ERR_INVALID_HANDLE, "This is not the handle of the open system module.");
    });
}

/// Runs the body with the interface module that the handle identifies.
template <typename Body>
GC_ERROR withInterface(IF_HANDLE handle, Body &&body) noexcept
{
    return guarded([&] {
        if (const GC_ERROR error = Producer::instance().requireInitialised())
            return error;
        const std::shared_ptr<InterfaceModule> module = Producer::instance().interface(handle);
        return module ? body(*module)
                      : fail(GC_ERR_INVALID_HANDLE, "This is not the handle of an open interface.");
    });
}

/// Limits the timeout to a minute, because GENTL_INFINITE and other large values cannot be added to a time.
std::chrono::milliseconds toTimeout(std::uint64_t milliseconds)
{
    constexpr std::uint64_t maxTimeout = 60 * 1000;
    return std::chrono::milliseconds(std::min(milliseconds, maxTimeout));
}

/// Returns the interface's current entry in the system's list. If the list no longer contains the interface,
/// returns the entry with which the interface was opened.
InterfaceRecord currentRecord(const InterfaceModule &module)
{
    const std::shared_ptr<SystemModule> system = Producer::instance().openedSystem();
    return (system ? system->interfaces.find(module.openedAs.id) : std::nullopt).value_or(module.openedAs);
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
    return guarded([&] { return Producer::instance().closeSystem(hTL); });
}

GENTL_FUNCTION TLGetInfo(
    TL_HANDLE hTL, TL_INFO_CMD iInfoCmd, INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    return withSystem(hTL, [&](SystemModule &) {
        return Producer::instance().info(iInfoCmd, InfoOutput(piType, pBuffer, piSize));
    });
}

// The timeout is ignored, because no source waits for interfaces.
GENTL_FUNCTION TLUpdateInterfaceList(TL_HANDLE hTL, bool8_t *pbChanged, std::uint64_t)
{
    return withSystem(hTL, [&](SystemModule &system) {
        return system.interfaces.update([&] { return system.source->updateInterfaces(); }, pbChanged);
    });
}

GENTL_FUNCTION TLGetNumInterfaces(TL_HANDLE hTL, std::uint32_t *piNumIfaces)
{
    return withSystem(hTL, [&](SystemModule &system) { return system.interfaces.count(piNumIfaces); });
}

GENTL_FUNCTION TLGetInterfaceID(TL_HANDLE hTL, std::uint32_t iIndex, char *sID, std::size_t *piSize)
{
    return withSystem(
        hTL, [&](SystemModule &system) { return system.interfaces.id(iIndex, InfoOutput(sID, piSize)); });
}

GENTL_FUNCTION TLGetInterfaceInfo(TL_HANDLE hTL, const char *sIfaceID, INTERFACE_INFO_CMD iInfoCmd,
    INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    return withSystem(hTL, [&](SystemModule &system) {
        return system.interfaces.info(
            sIfaceID, iInfoCmd, InfoOutput(piType, pBuffer, piSize), writeInterfaceInfo);
    });
}

GENTL_FUNCTION TLOpenInterface(TL_HANDLE hTL, const char *sIfaceID, IF_HANDLE *phIface)
{
    return withSystem(hTL, [&](SystemModule &system) {
        return sIfaceID
            ? Producer::instance().openInterface(sIfaceID, system.interfaces.find(sIfaceID), phIface)
            : failMissingArgument();
    });
}

GENTL_FUNCTION IFClose(IF_HANDLE hIface)
{
    return guarded([&] { return Producer::instance().closeInterface(hIface); });
}

GENTL_FUNCTION IFGetInfo(
    IF_HANDLE hIface, INTERFACE_INFO_CMD iInfoCmd, INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    return withInterface(hIface, [&](InterfaceModule &module) {
        const InfoOutput output(piType, pBuffer, piSize);
        return output.isComplete() ? writeInterfaceInfo(currentRecord(module), iInfoCmd, output)
                                   : failMissingArgument();
    });
}

GENTL_FUNCTION IFUpdateDeviceList(IF_HANDLE hIface, bool8_t *pbChanged, std::uint64_t iTimeout)
{
    return withInterface(hIface, [&](InterfaceModule &module) {
        return module.devices.update(
            [&] { return module.source->updateDevices(module.openedAs.id, toTimeout(iTimeout)); }, pbChanged);
    });
}

GENTL_FUNCTION IFGetNumDevices(IF_HANDLE hIface, std::uint32_t *piNumDevices)
{
    return withInterface(hIface, [&](InterfaceModule &module) { return module.devices.count(piNumDevices); });
}

GENTL_FUNCTION IFGetDeviceID(IF_HANDLE hIface, std::uint32_t iIndex, char *sIDeviceID, std::size_t *piSize)
{
    return withInterface(hIface,
        [&](InterfaceModule &module) { return module.devices.id(iIndex, InfoOutput(sIDeviceID, piSize)); });
}

GENTL_FUNCTION IFGetDeviceInfo(IF_HANDLE hIface, const char *sDeviceID, DEVICE_INFO_CMD iInfoCmd,
    INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    return withInterface(hIface, [&](InterfaceModule &module) {
        return module.devices.info(sDeviceID, iInfoCmd, InfoOutput(piType, pBuffer, piSize), writeDeviceInfo);
    });
}

GENTL_FUNCTION IFGetParentTL(IF_HANDLE hIface, TL_HANDLE *phSystem)
{
    return withInterface(hIface, [&](InterfaceModule &) {
        if (!phSystem)
            return failMissingArgument();
        *phSystem = Producer::instance().systemHandle();
        return GC_ERR_SUCCESS;
    });
}

// This function is not part of GenTL; see ListChangeExtension.h.
__attribute__((visibility("default"))) int CvxListChangedDescriptor()
{
    return Producer::instance().listChangedDescriptor();
}
static_assert(std::is_same_v<decltype(CvxListChangedDescriptor), ListChangedFunction>);

} // extern "C"
