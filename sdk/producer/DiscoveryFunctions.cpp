// The exported functions of discovery. Each checks what the C interface hands it (state, handle, text),
// and leaves the answer to the module behind the handle.

#include "sdk/producer/Answer.h"
#include "sdk/producer/LastError.h"
#include "sdk/producer/Producer.h"

#include <exception>
#include <new>

using namespace GenTL;

namespace {

/// Runs the body of an exported function. No exception gets past here: the caller may be written in C.
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

/// Runs the body with the system module behind a handle.
template <typename Body>
GC_ERROR withSystem(TL_HANDLE handle, Body &&body) noexcept
{
    return guarded([&] {
        if (const GC_ERROR error = Producer::instance().requireInitialised())
            return error;
        const std::shared_ptr<SystemModule> module = Producer::instance().system(handle);
        return module ? body(*module) : fail(GC_ERR_INVALID_HANDLE, "This is no open system module.");
    });
}

/// Runs the body with the interface module behind a handle.
template <typename Body>
GC_ERROR withInterface(IF_HANDLE handle, Body &&body) noexcept
{
    return guarded([&] {
        if (const GC_ERROR error = Producer::instance().requireInitialised())
            return error;
        const std::shared_ptr<InterfaceModule> module = Producer::instance().interface(handle);
        return module ? body(*module) : fail(GC_ERR_INVALID_HANDLE, "This is no open interface.");
    });
}

/// The interface as the system's list has it now; as it was when opened, once it is gone from there.
InterfaceRecord currentRecord(const InterfaceModule &module)
{
    const std::shared_ptr<SystemModule> system = Producer::instance().system();
    return (system ? system->findInterface(module.record().id) : std::nullopt).value_or(module.record());
}

GC_ERROR answerLastError(
    GC_ERROR code, const std::string &text, GC_ERROR *codeOutput, const Answer &textOutput)
{
    if (const GC_ERROR error = Producer::instance().requireInitialised())
        return error;
    if (!codeOutput || !textOutput.isComplete())
        return failArgumentMissing();
    const GC_ERROR error = textOutput.text(text);
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
    return guarded([&] { return Producer::instance().info(iInfoCmd, Answer(piType, pBuffer, piSize)); });
}

GENTL_FUNCTION GCGetLastError(GC_ERROR *piErrorCode, char *sErrText, std::size_t *piSize)
{
    return guarded([&] {
        const GC_ERROR code = lastErrorCode();
        const std::string text = lastErrorText();
        const GC_ERROR error = answerLastError(code, text, piErrorCode, Answer(sErrText, piSize));
        if (error)
            fail(code, text); // Still there for a second try with a longer buffer.
        return error;
    });
}

GENTL_FUNCTION TLOpen(TL_HANDLE *phTL)
{
    return guarded([&] {
        const GC_ERROR error = Producer::instance().requireInitialised();
        return error ? error : Producer::instance().openSystem(phTL);
    });
}

GENTL_FUNCTION TLClose(TL_HANDLE hTL)
{
    return guarded([&] {
        const GC_ERROR error = Producer::instance().requireInitialised();
        return error ? error : Producer::instance().closeSystem(hTL);
    });
}

GENTL_FUNCTION TLGetInfo(
    TL_HANDLE hTL, TL_INFO_CMD iInfoCmd, INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    return withSystem(hTL,
        [&](SystemModule &) { return Producer::instance().info(iInfoCmd, Answer(piType, pBuffer, piSize)); });
}

// The sources have no use for a time limit, so neither update function looks at it.
GENTL_FUNCTION TLUpdateInterfaceList(TL_HANDLE hTL, bool8_t *pbChanged, std::uint64_t)
{
    return withSystem(hTL, [&](SystemModule &system) { return system.updateInterfaceList(pbChanged); });
}

GENTL_FUNCTION TLGetNumInterfaces(TL_HANDLE hTL, std::uint32_t *piNumIfaces)
{
    return withSystem(hTL, [&](SystemModule &system) { return system.countInterfaces(piNumIfaces); });
}

GENTL_FUNCTION TLGetInterfaceID(TL_HANDLE hTL, std::uint32_t iIndex, char *sID, std::size_t *piSize)
{
    return withSystem(
        hTL, [&](SystemModule &system) { return system.interfaceId(iIndex, Answer(sID, piSize)); });
}

GENTL_FUNCTION TLGetInterfaceInfo(TL_HANDLE hTL, const char *sIfaceID, INTERFACE_INFO_CMD iInfoCmd,
    INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    return withSystem(hTL, [&](SystemModule &system) {
        return sIfaceID ? system.interfaceInfo(sIfaceID, iInfoCmd, Answer(piType, pBuffer, piSize))
                        : failArgumentMissing();
    });
}

GENTL_FUNCTION TLOpenInterface(TL_HANDLE hTL, const char *sIfaceID, IF_HANDLE *phIface)
{
    return withSystem(hTL, [&](SystemModule &system) {
        return sIfaceID ? Producer::instance().openInterface(system, sIfaceID, phIface)
                        : failArgumentMissing();
    });
}

GENTL_FUNCTION IFClose(IF_HANDLE hIface)
{
    return guarded([&] {
        const GC_ERROR error = Producer::instance().requireInitialised();
        return error ? error : Producer::instance().closeInterface(hIface);
    });
}

GENTL_FUNCTION IFGetInfo(
    IF_HANDLE hIface, INTERFACE_INFO_CMD iInfoCmd, INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    return withInterface(hIface, [&](InterfaceModule &module) {
        const Answer answer(piType, pBuffer, piSize);
        return answer.isComplete() ? answerInterfaceInfo(currentRecord(module), iInfoCmd, answer)
                                   : failArgumentMissing();
    });
}

GENTL_FUNCTION IFUpdateDeviceList(IF_HANDLE hIface, bool8_t *pbChanged, std::uint64_t)
{
    return withInterface(hIface, [&](InterfaceModule &module) { return module.updateDeviceList(pbChanged); });
}

GENTL_FUNCTION IFGetNumDevices(IF_HANDLE hIface, std::uint32_t *piNumDevices)
{
    return withInterface(hIface, [&](InterfaceModule &module) { return module.countDevices(piNumDevices); });
}

GENTL_FUNCTION IFGetDeviceID(IF_HANDLE hIface, std::uint32_t iIndex, char *sIDeviceID, std::size_t *piSize)
{
    return withInterface(
        hIface, [&](InterfaceModule &module) { return module.deviceId(iIndex, Answer(sIDeviceID, piSize)); });
}

GENTL_FUNCTION IFGetDeviceInfo(IF_HANDLE hIface, const char *sDeviceID, DEVICE_INFO_CMD iInfoCmd,
    INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    return withInterface(hIface, [&](InterfaceModule &module) {
        return sDeviceID ? module.deviceInfo(sDeviceID, iInfoCmd, Answer(piType, pBuffer, piSize))
                         : failArgumentMissing();
    });
}

GENTL_FUNCTION IFGetParentTL(IF_HANDLE hIface, TL_HANDLE *phSystem)
{
    return withInterface(hIface, [&](InterfaceModule &) {
        if (!phSystem)
            return failArgumentMissing();
        *phSystem = Producer::instance().systemHandle();
        return GC_ERR_SUCCESS;
    });
}

} // extern "C"
