#include "sdk/process/ExitReason.h"

#include "sdk/protocol/HostContract.h"

#include <cstddef>
#include <cstring>
#include <iterator>
#include <sys/wait.h>

namespace {

/// The names of the GenTL error codes -1001, -1002 and so on.
constexpr std::string_view codeNames[] = {"GC_ERR_ERROR", "GC_ERR_NOT_INITIALIZED", "GC_ERR_NOT_IMPLEMENTED",
    "GC_ERR_RESOURCE_IN_USE", "GC_ERR_ACCESS_DENIED", "GC_ERR_INVALID_HANDLE", "GC_ERR_INVALID_ID",
    "GC_ERR_NO_DATA", "GC_ERR_INVALID_PARAMETER", "GC_ERR_IO", "GC_ERR_TIMEOUT", "GC_ERR_ABORT",
    "GC_ERR_INVALID_BUFFER", "GC_ERR_NOT_AVAILABLE", "GC_ERR_INVALID_ADDRESS", "GC_ERR_BUFFER_TOO_SMALL",
    "GC_ERR_INVALID_INDEX", "GC_ERR_PARSING_CHUNK_DATA", "GC_ERR_INVALID_VALUE", "GC_ERR_RESOURCE_EXHAUSTED",
    "GC_ERR_OUT_OF_MEMORY", "GC_ERR_BUSY", "GC_ERR_AMBIGUOUS"};

std::string codeName(std::int32_t code)
{
    constexpr std::int32_t firstCode = -1001;
    constexpr std::int32_t firstCustomCode = -10000;
    if (code <= firstCustomCode)
        return "specific to the producer";
    const std::int64_t index = std::int64_t(firstCode) - code;
    if (index >= 0 && index < std::int64_t(std::size(codeNames)))
        return std::string(codeNames[static_cast<std::size_t>(index)]);
    return "not a GenTL code";
}

} // namespace

std::string exitReason(int status)
{
    if (WIFEXITED(status) && WEXITSTATUS(status) == connectionLostStatus)
        return "closed its host's connection";
    if (WIFEXITED(status))
        return "exited with code " + std::to_string(WEXITSTATUS(status));
    if (!WIFSIGNALED(status))
        return "ended";
    const int signal = WTERMSIG(status);
    const char *name = sigabbrev_np(signal);
    const char *description = sigdescr_np(signal);
    if (!name || !description)
        return "was ended by signal " + std::to_string(signal);
    return std::string("was ended by SIG") + name + " (" + description + ")";
}

std::string callReason(std::string_view call, std::int32_t code, std::string_view text)
{
    std::string reason(call);
    reason += " failed";
    if (code != 0)
        reason += " with " + std::to_string(code) + " (" + codeName(code) + ")";
    if (!text.empty()) {
        reason += ": ";
        reason += text;
    }
    return reason;
}
