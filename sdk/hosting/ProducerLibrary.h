#pragma once

#include "sdk/gentl/GenTL.h"
#include "sdk/gentl/ListChangeExtension.h"
#include "sdk/protocol/Problem.h"

#include <cstdint>
#include <exception>
#include <limits>
#include <optional>
#include <string>

/// Returns true if the call timed out.
inline bool isTimeout(const Problem &problem)
{
    return problem.code == GenTL::GC_ERR_TIMEOUT;
}

/// Returns true if the call failed because the interface or the device no longer exists.
inline bool isGone(const Problem &problem)
{
    return problem.code == GenTL::GC_ERR_INVALID_ID || problem.code == GenTL::GC_ERR_INVALID_INDEX;
}

/// The functions of one loaded GenTL producer. call() converts every failure, including an exception, to a
/// Problem. The library is never unloaded, because some producers crash when they are unloaded.
class ProducerLibrary
{
public:
    /// Initial value of a count that the producer has to write. No producer returns this value.
    static constexpr std::uint32_t unwrittenCount = std::numeric_limits<std::uint32_t>::max();

    /// Loads the file and looks up its functions. Returns a problem if the file cannot be loaded or lacks a
    /// function that is needed for enumeration.
    std::optional<Problem> load(const char *path);

    /// Calls a function of the producer and returns the problem if the call fails. Every return value
    /// except 0 is a failure, including positive values.
    template <typename Function, typename... Arguments>
    std::optional<Problem> call(const char *name, Function function, Arguments... arguments) const
    {
        GenTL::GC_ERROR code = GenTL::GC_ERR_SUCCESS;
        try {
            code = function(arguments...);
        } catch (const std::exception &exception) {
            return Problem{name, 0, std::string("threw an exception: ") + exception.what()};
        } catch (...) {
            return Problem{name, 0, "threw an exception"};
        }
        if (code == GenTL::GC_ERR_SUCCESS)
            return std::nullopt;
        return Problem{name, code, lastErrorText()};
    }

    /// Returns the descriptor that is readable after the producer's lists have changed, or a negative number
    /// if the producer has none.
    int listChangeDescriptor() const;

    /// Returns the address of a function of the loaded producer, or null if the producer lacks it.
    void *find(const char *name) const;

    GenTL::PGCInitLib GCInitLib = nullptr;
    GenTL::PGCCloseLib GCCloseLib = nullptr;
    GenTL::PTLOpen TLOpen = nullptr;
    GenTL::PTLClose TLClose = nullptr;
    GenTL::PTLUpdateInterfaceList TLUpdateInterfaceList = nullptr;
    GenTL::PTLGetNumInterfaces TLGetNumInterfaces = nullptr;
    GenTL::PTLGetInterfaceID TLGetInterfaceID = nullptr;
    GenTL::PTLOpenInterface TLOpenInterface = nullptr;
    GenTL::PIFClose IFClose = nullptr;
    GenTL::PIFUpdateDeviceList IFUpdateDeviceList = nullptr;
    GenTL::PIFGetNumDevices IFGetNumDevices = nullptr;
    GenTL::PIFGetDeviceID IFGetDeviceID = nullptr;
    GenTL::PIFGetDeviceInfo IFGetDeviceInfo = nullptr;

    // These functions are optional; the pointer is null if the producer lacks the function.
    GenTL::PTLGetInterfaceInfo TLGetInterfaceInfo = nullptr;
    GenTL::PGCGetLastError GCGetLastError = nullptr;
    ListChangedFunction *listChangedDescriptor = nullptr;

private:
    std::optional<Problem> resolveFunctions(void *library);
    std::string lastErrorText() const;

    void *m_library = nullptr;
};
