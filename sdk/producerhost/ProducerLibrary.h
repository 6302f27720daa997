#pragma once

#include "sdk/gentl/GenTL.h"
#include "sdk/protocol/Problem.h"

#include <cstdint>
#include <exception>
#include <limits>
#include <optional>
#include <string>

/// Returns true if the call was given too little time.
inline bool isTimeout(const Problem &problem)
{
    return problem.code == GenTL::GC_ERR_TIMEOUT;
}

/// Returns true if the call was about an interface or device that has gone since it was listed.
inline bool isGone(const Problem &problem)
{
    return problem.code == GenTL::GC_ERR_INVALID_ID || problem.code == GenTL::GC_ERR_INVALID_INDEX;
}

/// The functions of one loaded GenTL producer. call() turns every failure, also an exception, into a Problem.
/// The library is never unloaded, because some producers do not survive it.
class ProducerLibrary
{
public:
    /// Initial value for a count that the producer has to write: no producer returns it.
    static constexpr std::uint32_t unwrittenCount = std::numeric_limits<std::uint32_t>::max();

    /// Loads the file and looks up its functions. Fails if a function is missing that enumeration needs.
    std::optional<Problem> load(const char *path);

    /// Calls a function. Every return value except 0 is a failure, positive values too.
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

    // Optional functions; null if the producer lacks them.
    GenTL::PTLGetInterfaceInfo TLGetInterfaceInfo = nullptr;
    GenTL::PGCGetLastError GCGetLastError = nullptr;

private:
    std::optional<Problem> resolveFunctions(void *library);
    std::string lastErrorText() const;
};
