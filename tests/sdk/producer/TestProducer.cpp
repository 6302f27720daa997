// This GenTL producer for tests follows the script "name.script" in the directory of "name.cti". Every
// function that updates or closes something reads the script again. A script may contain these lines:
//
// interface ID|NAME|TYPE
// device INTERFACE|ID|VENDOR|MODEL|SERIAL|NAME|TYPE (reading a field that is missing fails with -1003)
// interfaces NUMBER, devices INTERFACE|NUMBER|PREFIX: adds this number of them, with IDs such as "net1" or
// PREFIX and a number; the prefix "D" can be omitted
// late MILLISECONDS|INTERFACE|ID|VENDOR|…: a device that only a search with at least this timeout finds
// self-updating: CvxListChangedDescriptor returns an eventfd, which is signalled when the script has changed
// quiet: disables the log, and the script is not read again; both make the producer faster
// fault FUNCTION ACTION [ARGUMENT]; the function "load" is the constructor of the library
//
// Every function accepts these actions: error CODE, crash, abort, throw, throw-number, throw-in-thread,
// terminate, exit CODE, hang, untouched, slow MILLISECONDS, burn MILLISECONDS, meet CALLS, fork,
// fork-and-die, daemon, allocate, threads, signals, print, ask (on the terminal), close. "untouched" returns
// success without writing the outputs, "burn" uses processor time, "meet" waits for that many calls at the
// same time, "allocate" allocates memory without end, and "close" closes all descriptors.
//
// A string is read with two calls: the first one returns the size, the second one fills the buffer. Functions
// that return a string also accept:
// grow TIMES: in this number of second calls, the string is longer than the size that was returned
// grow-1.3 TIMES: the same with the error code of GenTL 1.3
// late-error CODE: only the second call fails, with this code
// size BYTES: reports this size and ignores the capacity of the buffer; "size -1" reports one byte too few
// long BYTES, no-nul, number (instead of a string)
//
// The update functions also accept "search MILLISECONDS", which times out if the timeout is shorter, and
// "whole", which waits for the whole timeout and succeeds. If the search of an interface times out, its list
// contains the devices that were found in time.
// CvxListChangedDescriptor, which is only called and logged if the script contains "self-updating", also
// accepts "flood": the descriptor is always readable; "error NUMBER" returns this number as the descriptor.
// TLOpenInterface also accepts "in-use", which opens the interface but returns an error. The functions that
// return a number of objects also accept "more", which makes the number larger. IFUpdateDeviceList:ID is the
// update of one interface; TLGetInterfaceID:ID and IFGetDeviceID:ID are similar.
//
// In strings, \xHH is a byte. The producer writes every call, after the process ID, to "name.log".

#include "sdk/gentl/GenTL.h"
#include "tests/sdk/producer/Misbehaviour.h"
#include "tests/sdk/producer/Script.h"
#include "tests/sdk/producer/ScriptWatch.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <map>
#include <mutex>
#include <sstream>
#include <string>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

using namespace GenTL;

struct Interface
{
    std::string id;
    std::vector<Fields> devices; // Devices that the last update found.
    std::map<std::string, std::size_t> places; // Key: device ID; value: index in `devices`.
    bool isUpdated = false;
    std::mutex updating;
};

struct Fault
{
    std::string verb;
    long long argument = 0;
};

std::mutex mutex; // Guards the variables below.
Script script;
std::vector<Fields> interfaces; // Interfaces that the last update found.
std::map<std::string, Interface *> opened; // By ID. Interfaces are never deleted, so late uses are safe.
bool isInitialised = false;
bool isOpen = false;
thread_local int lastCode = 0;
thread_local std::string currentFault; // Fault of the current call.
int systemHandle = 0;

void readScript()
{
    const std::lock_guard lock(mutex);
    if (script.isQuiet)
        return;
    script = readScriptFile();
}

void log(const std::string &text)
{
    {
        const std::lock_guard lock(mutex);
        if (script.isQuiet)
            return;
    }
    const std::string line = std::to_string(getpid()) + ' ' + text + '\n';
    const int file = open((basePath() + ".log").c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644);
    [[maybe_unused]] const auto written = write(file, line.data(), line.size());
    close(file);
}

std::string actionFor(const std::string &function)
{
    const std::lock_guard lock(mutex);
    const auto found = script.faults.find(function);
    return found == script.faults.end() ? std::string() : found->second;
}

Fault parsed(const std::string &action)
{
    Fault fault;
    std::istringstream(action) >> fault.verb >> fault.argument;
    return fault;
}

/// Logs the call, then performs the fault of the script.
int enter(const std::string &function, const std::string &detail = {})
{
    log(detail.empty() ? function : function + ' ' + detail);
    currentFault = actionFor(function);
    const int code = perform(currentFault);
    lastCode = code == continueCall ? 0 : code;
    return code;
}

/// Logs a call and performs its fault. Unless the fault ends the call, runs the body with the mutex held.
template <typename Body>
int call(const std::string &function, const std::string &detail, const Body &body)
{
    if (const int code = enter(function, detail); code != continueCall)
        return code;
    const std::lock_guard lock(mutex);
    return body();
}

int returnString(const std::string &original, void *buffer, std::size_t *size)
{
    const Fault fault = parsed(currentFault);
    std::string value = original;
    if (fault.verb == "long")
        value = std::string(static_cast<std::size_t>(fault.argument), 'x');
    static int growths = 0;
    const bool isOldError = fault.verb == "grow-1.3";
    if ((fault.verb == "grow" || isOldError) && buffer && growths++ < fault.argument)
        value += std::string(1000, 'x');
    const std::size_t needed = value.size() + (fault.verb == "no-nul" ? 0 : 1);
    if (buffer && fault.verb == "late-error")
        return static_cast<int>(fault.argument);
    if (buffer && *size < needed && fault.verb != "size")
        return isOldError ? GC_ERR_INVALID_PARAMETER : GC_ERR_BUFFER_TOO_SMALL;
    if (buffer)
        std::memcpy(buffer, value.c_str(), needed);
    *size = needed;
    if (fault.verb == "size")
        *size = fault.argument < 0 ? needed - 1 : static_cast<std::size_t>(fault.argument);
    return GC_ERR_SUCCESS;
}

/// Returns a field of a record, or GC_ERR_NOT_IMPLEMENTED if the script does not contain the field.
int returnInfo(const Fields &fields, std::size_t place, INFO_DATATYPE *type, void *buffer, std::size_t *size)
{
    if (place >= fields.size())
        return GC_ERR_NOT_IMPLEMENTED;
    *type = currentFault == "number" ? INFO_DATATYPE_INT64 : INFO_DATATYPE_STRING;
    return returnString(fields[place], buffer, size);
}

std::uint32_t counted(std::size_t number)
{
    return static_cast<std::uint32_t>(number + (currentFault == "more" ? 3 : 0));
}

/// Crashes, as a known producer does if an index is too large. The fault "more" turns the crash into an
/// error.
GC_ERROR refuseIndex()
{
    for (const char *function : {"IFGetNumDevices", "TLGetNumInterfaces"}) {
        const auto fault = script.faults.find(function);
        if (fault != script.faults.end() && fault->second == "more")
            return GC_ERR_INVALID_INDEX;
    }
    std::abort();
}

/// Returns the ID at an index of a list, unless the script has a fault for that ID.
int returnId(
    const char *function, const std::vector<Fields> &list, std::uint32_t index, char *id, std::size_t *size)
{
    if (index >= list.size())
        return refuseIndex();
    const auto fault = script.faults.find(std::string(function) + ':' + list[index][0]);
    const int code = fault == script.faults.end() ? continueCall : perform(fault->second);
    return code != continueCall ? code : returnString(list[index][0], id, size);
}

/// Waits for the time of a "search" or "whole" fault. Returns GC_ERR_TIMEOUT if the timeout is shorter.
int search(const std::string &action, std::uint64_t timeout)
{
    const Fault fault = parsed(action);
    if (fault.verb != "search" && fault.verb != "whole")
        return continueCall;
    const auto needed = fault.verb == "whole" ? timeout : static_cast<std::uint64_t>(fault.argument);
    std::this_thread::sleep_for(std::chrono::milliseconds(std::min(needed, timeout)));
    return needed > timeout ? int(GC_ERR_TIMEOUT) : continueCall;
}

/// Stores the devices that a search with this timeout finds.
void findDevices(Interface &interface, std::uint64_t timeout)
{
    interface.devices.clear();
    interface.places.clear();
    const auto range = script.devices.equal_range(interface.id);
    for (auto entry = range.first; entry != range.second; ++entry) {
        const auto &[fields, searchTime] = entry->second;
        if (searchTime > timeout)
            continue;
        interface.places.emplace(fields[0], interface.devices.size());
        interface.devices.push_back(fields);
    }
    interface.isUpdated = true;
}

struct AtLoad
{
    AtLoad()
    {
        readScript();
        std::string visible; // Environment variables that a host must hide.
        for (const char *variable : {"GENICAM_GENTL64_PATH", "G_DEBUG"})
            visible += std::getenv(variable) ? variable : "";
        enter("load", visible);
    }
} const atLoad;

} // namespace

namespace GenTL {
extern "C" {

GENTL_FUNCTION GCInitLib()
{
    return call("GCInitLib", "",
        [] { return std::exchange(isInitialised, true) ? GC_ERR_RESOURCE_IN_USE : GC_ERR_SUCCESS; });
}

GENTL_FUNCTION GCCloseLib()
{
    readScript();
    return call("GCCloseLib", "", [] {
        const bool isClosable = isInitialised && !isOpen;
        isInitialised = isInitialised && isOpen;
        return isClosable ? GC_ERR_SUCCESS : GC_ERR_NOT_INITIALIZED;
    });
}

#ifndef WITHOUT_OPTIONAL_FUNCTIONS
GENTL_FUNCTION CvxListChangedDescriptor()
{
    {
        const std::lock_guard lock(mutex);
        if (!script.isSelfUpdating)
            return -1;
    }
    const int code = enter("CvxListChangedDescriptor");
    return code == continueCall ? watchScript(currentFault == "flood") : code;
}

GENTL_FUNCTION GCGetLastError(GC_ERROR *piErrorCode, char *sErrText, std::size_t *piSize)
{
    *piErrorCode = lastCode;
    currentFault.clear();
    const int result = returnString("the producer's own text", sErrText, piSize);
    const int code = perform(actionFor("GCGetLastError"));
    return code == continueCall ? result : code;
}
#endif

GENTL_FUNCTION TLOpen(TL_HANDLE *phTL)
{
    return call("TLOpen", "", [&] {
        isOpen = true;
        *phTL = &systemHandle;
        return GC_ERR_SUCCESS;
    });
}

GENTL_FUNCTION TLClose(TL_HANDLE hTL)
{
    readScript();
    return call("TLClose", "", [&] {
        if (hTL != &systemHandle || !std::exchange(isOpen, false))
            return GC_ERR_INVALID_HANDLE;
        return GC_ERR_SUCCESS;
    });
}

GENTL_FUNCTION TLUpdateInterfaceList(TL_HANDLE, bool8_t *, std::uint64_t iTimeout)
{
    readScript();
    if (const int code = enter("TLUpdateInterfaceList", std::to_string(iTimeout)); code != continueCall)
        return code;
    if (const int code = search(currentFault, iTimeout); code != continueCall)
        return code;
    const std::lock_guard lock(mutex);
    interfaces = script.interfaces;
    return GC_ERR_SUCCESS;
}

GENTL_FUNCTION TLGetNumInterfaces(TL_HANDLE, std::uint32_t *piNumIfaces)
{
    return call("TLGetNumInterfaces", "", [&] {
        *piNumIfaces = counted(interfaces.size());
        return GC_ERR_SUCCESS;
    });
}

GENTL_FUNCTION TLGetInterfaceID(TL_HANDLE, std::uint32_t iIndex, char *sID, std::size_t *piSize)
{
    return call("TLGetInterfaceID", "",
        [&] { return returnId("TLGetInterfaceID", interfaces, iIndex, sID, piSize); });
}

#ifndef WITHOUT_OPTIONAL_FUNCTIONS
GENTL_FUNCTION TLGetInterfaceInfo(TL_HANDLE, const char *sIfaceID, INTERFACE_INFO_CMD iInfoCmd,
    INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    return call("TLGetInterfaceInfo", sIfaceID, [&]() -> int {
        const auto found = opened.find(sIfaceID);
        if (found == opened.end() || !found->second->isUpdated || found->second->devices.empty())
            raise(SIGSEGV); // A producer that we know crashes here.
        for (const Fields &interface : interfaces) {
            if (interface[0] == sIfaceID)
                return returnInfo(interface, static_cast<std::size_t>(iInfoCmd), piType, pBuffer, piSize);
        }
        return GC_ERR_NOT_IMPLEMENTED;
    });
}
#endif

GENTL_FUNCTION TLOpenInterface(TL_HANDLE, const char *sIfaceID, IF_HANDLE *phIface)
{
    return call("TLOpenInterface", sIfaceID, [&] {
        if (opened.count(sIfaceID) > 0)
            return GC_ERR_RESOURCE_IN_USE;
        auto *interface = new Interface;
        interface->id = sIfaceID;
        opened[sIfaceID] = interface;
        *phIface = interface;
        return currentFault == "in-use" ? GC_ERR_RESOURCE_IN_USE : GC_ERR_SUCCESS;
    });
}

GENTL_FUNCTION IFClose(IF_HANDLE hIface)
{
    readScript();
    const std::string &id = static_cast<Interface *>(hIface)->id;
    return call(
        "IFClose", id, [&] { return opened.erase(id) == 1 ? GC_ERR_SUCCESS : GC_ERR_INVALID_HANDLE; });
}

GENTL_FUNCTION IFUpdateDeviceList(IF_HANDLE hIface, bool8_t *, std::uint64_t iTimeout)
{
    auto *interface = static_cast<Interface *>(hIface);
    const std::unique_lock updating(interface->updating, std::try_to_lock);
    if (!updating)
        std::abort(); // Updates of one interface must not run at the same time.
    readScript();
    const std::string ownAction = actionFor("IFUpdateDeviceList:" + interface->id);
    int code = enter("IFUpdateDeviceList", interface->id + ' ' + std::to_string(iTimeout));
    if (code == continueCall)
        code = search(ownAction.empty() ? currentFault : ownAction, iTimeout);
    if (code == continueCall || code == GC_ERR_TIMEOUT) {
        const std::lock_guard lock(mutex);
        findDevices(*interface, iTimeout);
    }
    return code == continueCall ? int(GC_ERR_SUCCESS) : code;
}

GENTL_FUNCTION IFGetNumDevices(IF_HANDLE hIface, std::uint32_t *piNumDevices)
{
    return call("IFGetNumDevices", "", [&] {
        const auto *interface = static_cast<Interface *>(hIface);
        if (!interface->isUpdated)
            return GC_ERR_NOT_AVAILABLE;
        *piNumDevices = counted(interface->devices.size());
        return GC_ERR_SUCCESS;
    });
}

GENTL_FUNCTION IFGetDeviceID(IF_HANDLE hIface, std::uint32_t iIndex, char *sIDeviceID, std::size_t *piSize)
{
    return call("IFGetDeviceID", "", [&] {
        return returnId(
            "IFGetDeviceID", static_cast<Interface *>(hIface)->devices, iIndex, sIDeviceID, piSize);
    });
}

#ifndef WITHOUT_IFGETDEVICEINFO
GENTL_FUNCTION IFGetDeviceInfo(IF_HANDLE hIface, const char *sDeviceID, DEVICE_INFO_CMD iInfoCmd,
    INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    return call("IFGetDeviceInfo", "", [&]() -> int {
        // The index of a command's field in the script. No record has a field 99.
        static constexpr std::array<std::size_t, 8> places{0, 1, 2, 5, 4, 99, 99, 3};
        const auto *interface = static_cast<Interface *>(hIface);
        const auto found = interface->places.find(sDeviceID);
        if (found == interface->places.end())
            return GC_ERR_INVALID_ID;
        const std::size_t place = places.at(static_cast<std::size_t>(iInfoCmd));
        return returnInfo(interface->devices[found->second], place, piType, pBuffer, piSize);
    });
}
#endif

} // extern "C"
} // namespace GenTL
