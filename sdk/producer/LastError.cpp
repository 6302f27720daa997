#include "sdk/producer/LastError.h"

#include <cstdio>

using namespace GenTL;

namespace {

/// The last error of one thread. The record is plain data, so setting it cannot fail. No destructor has to
/// run when the thread ends, which may happen after this library was unloaded.
struct LastError
{
    GC_ERROR code = GC_ERR_SUCCESS;
    char message[512] = "No error.";
};

thread_local LastError lastError;

} // namespace

GC_ERROR fail(GC_ERROR code, const char *message) noexcept
{
    lastError.code = code;
    std::snprintf(lastError.message, sizeof lastError.message, "%s", message);
    return code;
}

GC_ERROR fail(GC_ERROR code, const std::string &message) noexcept
{
    return fail(code, message.c_str());
}

GC_ERROR failMissingArgument()
{
    return fail(GC_ERR_INVALID_PARAMETER, "A required argument is NULL.");
}

GC_ERROR failUnknownCommand(std::int32_t command)
{
    return fail(GC_ERR_NOT_IMPLEMENTED, "There is no info command " + std::to_string(command) + ".");
}

GC_ERROR failNeverUpdated()
{
    return fail(GC_ERR_NOT_AVAILABLE, "The list was never updated.");
}

GC_ERROR failIndex(std::uint32_t index, std::uint32_t count)
{
    return fail(GC_ERR_INVALID_INDEX,
        "Index " + std::to_string(index) + " is past the end of a list of " + std::to_string(count) + ".");
}

GC_ERROR failUnknownId(const std::string &id)
{
    return fail(GC_ERR_INVALID_ID, "There is no \"" + id + "\" in the list.");
}

GC_ERROR lastErrorCode() noexcept
{
    return lastError.code;
}

const char *lastErrorMessage() noexcept
{
    return lastError.message;
}
