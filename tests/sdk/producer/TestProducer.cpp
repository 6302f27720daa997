// A GenTL producer for tests, which follows the script "name.script" beside "name.cti". Every update call and
// every call that opens or closes something reads the script again. One line each:
//   interface ID|NAME|TYPE
//   device INTERFACE|ID|VENDOR|MODEL|SERIAL|NAME|TYPE   Missing fields at the end fail with -1003.
//   interfaces NUMBER, devices INTERFACE|NUMBER         So many of them: "net1" or "D1" and so on.
//   changing INTERFACE                                  A device whose ID is different after every update.
//   quiet                                               No log, and the script is not read again: it is
//   faster. fault FUNCTION ACTION [ARGUMENT]                    "load" is the constructor of the library.
// Actions of every function: error CODE, crash, abort, throw, throw-number, throw-in-thread, throw-later
// MILLISECONDS, terminate, exit CODE, hang, untouched, slow MILLISECONDS, meet CALLS, fork, fork-and-die,
// daemon, allocate, threads, signals, ignore-and-hang, print, ask (on the terminal), close. Faults of
// functions that return a string: no-nul, long BYTES, grow (between the two calls), grow-1.3 (with the error
// code of GenTL 1.3), late-error CODE (of the second call), number (instead of a string), size BYTES
// ("size -1" reports one byte less than the string has, and ignores the capacity).
// Faults of the update functions: search MILLISECONDS, which times out if it gets less time.
// IFUpdateDeviceList:ID is the update of one interface; TLGetInterfaceID:ID and IFGetDeviceID:ID are similar.
// TLOpenInterface: in-use, which opens the interface all the same. Functions that count: more. In strings,
// \xHH is a byte. "name.log" receives every call with its process.

#include "sdk/gentl/GenTL.h"
#include "tests/sdk/producer/Misbehaviour.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <fstream>
#include <map>
#include <mutex>
#include <sstream>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using namespace GenTL;

struct Entry
{
    std::vector<std::string> fields;
    const std::string &id() const { return fields.front(); }
};

struct Interface
{
    std::string id;
    std::vector<Entry> devices; // Since the last update.
    std::map<std::string, std::size_t> places; // Index of each device, by ID.
    bool isUpdated = false;
    std::atomic<bool> isUpdating{false};
};

struct Script
{
    std::vector<Entry> interfaces;
    std::multimap<std::string, Entry> devices; // By interface.
    std::map<std::string, std::string> faults; // Function, action.
    bool isQuiet = false;
};

std::mutex mutex; // Guards the variables below.
Script script;
std::vector<Entry> interfaces; // Since the last update.
std::map<std::string, Interface *> opened; // Never deleted, to detect uses after the close.
bool isInitialised = false;
bool isOpen = false;
thread_local int lastCode = 0;
thread_local std::string currentFault; // Fault of the current call.
int updates = 0; // Number of updates of all interfaces.
int systemHandle = 0;

const std::string &basePath()
{
    static const std::string path = [] {
        Dl_info info{};
        dladdr(&systemHandle, &info);
        const std::string file = info.dli_fname;
        return file.substr(0, file.rfind('.'));
    }();
    return path;
}

std::string unescaped(const std::string &text)
{
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isByte = text.compare(i, 2, "\\x") == 0 && i + 3 < text.size();
        result += isByte ? static_cast<char>(std::stoi(text.substr(i + 2, 2), nullptr, 16)) : text[i];
        i += isByte ? 3 : 0;
    }
    return result;
}

std::vector<std::string> split(const std::string &text)
{
    std::vector<std::string> fields;
    std::size_t start = 0;
    for (std::size_t end = text.find('|'); end != std::string::npos; end = text.find('|', start)) {
        fields.push_back(unescaped(text.substr(start, end - start)));
        start = end + 1;
    }
    fields.push_back(unescaped(text.substr(start)));
    return fields;
}

void addDevice(const std::string &interface, std::vector<std::string> fields)
{
    script.devices.emplace(interface, Entry{std::move(fields)});
}

void addDevices(const std::string &interface, int count)
{
    for (int i = 1; i <= count; ++i) {
        const std::string number = std::to_string(i);
        addDevice(interface, {'D' + number, "Vendor", "Model " + number, "SN" + number, "Name", "GEV"});
    }
}

void readLine(const std::string &line)
{
    const std::string keyword = line.substr(0, line.find(' '));
    const std::string rest = line.substr(std::min(keyword.size() + 1, line.size()));
    auto fields = split(rest);
    if (keyword == "interface") {
        script.interfaces.push_back({fields});
    } else if (keyword == "interfaces") {
        for (int i = 1; i <= std::stoi(rest); ++i)
            script.interfaces.push_back({{"net" + std::to_string(i)}});
    } else if (keyword == "device") {
        const std::string interface = fields.front();
        fields.erase(fields.begin());
        addDevice(interface, fields);
    } else if (keyword == "devices") {
        addDevices(fields.at(0), std::stoi(fields.at(1)));
    } else if (keyword == "changing") {
        addDevice(rest, {'D' + std::to_string(++updates), "Vendor", "Model", "SN", "Name", "GEV"});
    } else if (keyword == "quiet") {
        script.isQuiet = true;
    } else if (keyword == "fault") {
        const std::size_t space = rest.find(' ');
        script.faults[rest.substr(0, space)] = rest.substr(space + 1);
    }
}

void readScript()
{
    const std::lock_guard lock(mutex);
    if (script.isQuiet)
        return;
    script = Script();
    std::ifstream file(basePath() + ".script");
    for (std::string line; std::getline(file, line);)
        readLine(line);
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

/// Logs the call, then performs the fault of the script.
int enter(const std::string &function, const std::string &detail = {})
{
    log(detail.empty() ? function : function + ' ' + detail);
    currentFault = actionFor(function);
    const int code = perform(currentFault);
    lastCode = code == continueCall ? 0 : code;
    return code;
}

/// Returns the value, or the string that the script replaces it by.
std::string replaced(
    const std::string &value, const std::string &verb, long long argument, const void *buffer)
{
    if (verb == "long")
        return std::string(static_cast<std::size_t>(argument), 'x');
    if ((verb == "grow" || verb == "grow-1.3") && buffer)
        return value + std::string(1000, 'x');
    return value;
}

int returnString(const std::string &original, void *buffer, std::size_t *size)
{
    std::istringstream fields(currentFault);
    std::string verb;
    long long argument = 0;
    fields >> verb >> argument;
    const std::string value = replaced(original, verb, argument, buffer);
    const std::size_t needed = value.size() + (verb == "no-nul" ? 0 : 1);
    if (buffer && verb == "late-error")
        return static_cast<int>(argument);
    if (buffer && *size < needed && verb != "size")
        return verb == "grow-1.3" ? GC_ERR_INVALID_PARAMETER : GC_ERR_BUFFER_TOO_SMALL;
    if (buffer)
        std::memcpy(buffer, value.c_str(), needed);
    *size = verb != "size" ? needed : argument < 0 ? needed - 1 : static_cast<std::size_t>(argument);
    return GC_ERR_SUCCESS;
}

std::uint32_t counted(std::size_t number)
{
    return static_cast<std::uint32_t>(number + (currentFault == "more" ? 3 : 0));
}

/// Crashes, as a known producer does: a consumer must never probe for the end of a list.
GC_ERROR refuseIndex()
{
    if (actionFor("IFGetNumDevices") != "more" && actionFor("TLGetNumInterfaces") != "more")
        raise(SIGSEGV);
    return GC_ERR_INVALID_INDEX;
}

int returnInfo(const std::string &value, INFO_DATATYPE *type, void *buffer, std::size_t *size)
{
    *type = currentFault == "number" ? INFO_DATATYPE_INT64 : INFO_DATATYPE_STRING;
    return returnString(value, buffer, size);
}

/// Searches for as long as the script says. Returns GC_ERR_TIMEOUT if that takes too long.
int search(const std::string &action, std::uint64_t timeout)
{
    std::istringstream fields(action);
    std::string verb;
    std::uint64_t needed = 0;
    fields >> verb >> needed;
    if (verb != "search")
        return continueCall;
    std::this_thread::sleep_for(std::chrono::milliseconds(std::min(needed, timeout)));
    return needed > timeout ? int(GC_ERR_TIMEOUT) : continueCall;
}

/// Ends the process if two updates of one interface run at once.
class Updating
{
public:
    explicit Updating(Interface &interface) : m_interface(interface)
    {
        if (m_interface.isUpdating.exchange(true))
            std::abort();
    }
    ~Updating() { m_interface.isUpdating = false; }
    Updating(const Updating &) = delete;
    Updating &operator=(const Updating &) = delete;

private:
    Interface &m_interface;
};

struct AtLoad
{
    AtLoad()
    {
        readScript();
        std::string visible; // Variables that a host must hide.
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
    if (const int code = enter("GCInitLib"); code != continueCall)
        return code;
    const std::lock_guard lock(mutex);
    if (isInitialised)
        return GC_ERR_RESOURCE_IN_USE;
    isInitialised = true;
    return GC_ERR_SUCCESS;
}

GENTL_FUNCTION GCCloseLib()
{
    readScript();
    if (const int code = enter("GCCloseLib"); code != continueCall)
        return code;
    const std::lock_guard lock(mutex);
    if (!isInitialised || isOpen)
        return GC_ERR_NOT_INITIALIZED;
    isInitialised = false;
    return GC_ERR_SUCCESS;
}

#ifndef WITHOUT_OPTIONAL_FUNCTIONS
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
    if (const int code = enter("TLOpen"); code != continueCall)
        return code;
    const std::lock_guard lock(mutex);
    isOpen = true;
    *phTL = &systemHandle;
    return GC_ERR_SUCCESS;
}

GENTL_FUNCTION TLClose(TL_HANDLE hTL)
{
    readScript();
    if (const int code = enter("TLClose"); code != continueCall)
        return code;
    const std::lock_guard lock(mutex);
    if (hTL != &systemHandle || !isOpen)
        return GC_ERR_INVALID_HANDLE;
    isOpen = false;
    return GC_ERR_SUCCESS;
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
    if (const int code = enter("TLGetNumInterfaces"); code != continueCall)
        return code;
    const std::lock_guard lock(mutex);
    *piNumIfaces = counted(interfaces.size());
    return GC_ERR_SUCCESS;
}

GENTL_FUNCTION TLGetInterfaceID(TL_HANDLE, std::uint32_t iIndex, char *sID, std::size_t *piSize)
{
    if (const int code = enter("TLGetInterfaceID"); code != continueCall)
        return code;
    if (iIndex >= interfaces.size())
        return refuseIndex();
    if (const int code = perform(actionFor("TLGetInterfaceID:" + interfaces[iIndex].id()));
        code != continueCall)
        return code;
    const std::lock_guard lock(mutex);
    return returnString(interfaces[iIndex].id(), sID, piSize);
}

#ifndef WITHOUT_OPTIONAL_FUNCTIONS
GENTL_FUNCTION TLGetInterfaceInfo(TL_HANDLE, const char *sIfaceID, INTERFACE_INFO_CMD iInfoCmd,
    INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    if (const int code = enter("TLGetInterfaceInfo", sIfaceID); code != continueCall)
        return code;
    const std::lock_guard lock(mutex);
    const auto found = opened.find(sIfaceID);
    if (found == opened.end() || !found->second->isUpdated || found->second->devices.empty())
        raise(SIGSEGV); // As a known producer does.
    for (const Entry &interface : interfaces) {
        const auto field = static_cast<std::size_t>(iInfoCmd);
        if (interface.id() == sIfaceID && field < interface.fields.size())
            return returnInfo(interface.fields[field], piType, pBuffer, piSize);
    }
    return GC_ERR_NOT_IMPLEMENTED;
}
#endif

GENTL_FUNCTION TLOpenInterface(TL_HANDLE, const char *sIfaceID, IF_HANDLE *phIface)
{
    if (const int code = enter("TLOpenInterface", sIfaceID); code != continueCall)
        return code;
    const std::lock_guard lock(mutex);
    if (opened.count(sIfaceID) > 0)
        return GC_ERR_RESOURCE_IN_USE;
    auto *interface = new Interface;
    interface->id = sIfaceID;
    opened[sIfaceID] = interface;
    *phIface = interface;
    return currentFault == "in-use" ? GC_ERR_RESOURCE_IN_USE : GC_ERR_SUCCESS;
}

GENTL_FUNCTION IFClose(IF_HANDLE hIface)
{
    readScript();
    const auto *interface = static_cast<Interface *>(hIface);
    if (const int code = enter("IFClose", interface->id); code != continueCall)
        return code;
    const std::lock_guard lock(mutex);
    return opened.erase(interface->id) == 1 ? GC_ERR_SUCCESS : GC_ERR_INVALID_HANDLE;
}

GENTL_FUNCTION IFUpdateDeviceList(IF_HANDLE hIface, bool8_t *, std::uint64_t iTimeout)
{
    auto *interface = static_cast<Interface *>(hIface);
    const Updating updating(*interface);
    readScript();
    const int code = enter("IFUpdateDeviceList", interface->id + ' ' + std::to_string(iTimeout));
    const std::string ownAction = actionFor("IFUpdateDeviceList:" + interface->id);
    const int ownCode = perform(ownAction);
    if (code != continueCall || ownCode != continueCall)
        return code != continueCall ? code : ownCode;
    if (const int searchCode = search(ownAction, iTimeout); searchCode != continueCall)
        return searchCode;
    const std::lock_guard lock(mutex);
    interface->devices.clear();
    const auto range = script.devices.equal_range(interface->id);
    interface->places.clear();
    for (auto entry = range.first; entry != range.second; ++entry) {
        interface->places.emplace(entry->second.id(), interface->devices.size());
        interface->devices.push_back(entry->second);
    }
    interface->isUpdated = true;
    return GC_ERR_SUCCESS;
}

GENTL_FUNCTION IFGetNumDevices(IF_HANDLE hIface, std::uint32_t *piNumDevices)
{
    if (const int code = enter("IFGetNumDevices"); code != continueCall)
        return code;
    const auto *interface = static_cast<Interface *>(hIface);
    if (!interface->isUpdated)
        return GC_ERR_NOT_AVAILABLE;
    *piNumDevices = counted(interface->devices.size());
    return GC_ERR_SUCCESS;
}

GENTL_FUNCTION IFGetDeviceID(IF_HANDLE hIface, std::uint32_t iIndex, char *sIDeviceID, std::size_t *piSize)
{
    if (const int code = enter("IFGetDeviceID"); code != continueCall)
        return code;
    const auto *interface = static_cast<Interface *>(hIface);
    if (iIndex >= interface->devices.size())
        return refuseIndex();
    const std::string &id = interface->devices[iIndex].id();
    if (const int code = perform(actionFor("IFGetDeviceID:" + id)); code != continueCall)
        return code;
    return returnString(id, sIDeviceID, piSize);
}

#ifndef WITHOUT_IFGETDEVICEINFO
GENTL_FUNCTION IFGetDeviceInfo(IF_HANDLE hIface, const char *sDeviceID, DEVICE_INFO_CMD iInfoCmd,
    INFO_DATATYPE *piType, void *pBuffer, std::size_t *piSize)
{
    if (const int code = enter("IFGetDeviceInfo"); code != continueCall)
        return code;
    // The fields of a device in a script, by command: ID, vendor, model, type, name; serial number.
    static constexpr std::array<std::size_t, 8> places{0, 1, 2, 5, 4, 99, 99, 3};
    const auto *interface = static_cast<Interface *>(hIface);
    const auto found = interface->places.find(sDeviceID);
    if (found == interface->places.end())
        return GC_ERR_INVALID_ID;
    const Entry &device = interface->devices[found->second];
    const std::size_t place = places.at(static_cast<std::size_t>(iInfoCmd));
    if (place >= device.fields.size())
        return GC_ERR_NOT_IMPLEMENTED;
    return returnInfo(device.fields[place], piType, pBuffer, piSize);
}
#endif

} // extern "C"
} // namespace GenTL
