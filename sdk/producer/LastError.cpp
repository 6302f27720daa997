#include "sdk/producer/LastError.h"

#include <cstdio>

namespace {

/// Plain data: recording a failure can then not fail itself, and a thread's end has nothing to destroy
/// in a library that may have been unloaded by then.
struct LastError
{
    GenTL::GC_ERROR code = GenTL::GC_ERR_SUCCESS;
    char text[512] = "No error.";
};

thread_local LastError lastError;

} // namespace

GenTL::GC_ERROR fail(GenTL::GC_ERROR code, const char *text) noexcept
{
    lastError.code = code;
    std::snprintf(lastError.text, sizeof lastError.text, "%s", text);
    return code;
}

GenTL::GC_ERROR fail(GenTL::GC_ERROR code, const std::string &text) noexcept
{
    return fail(code, text.c_str());
}

GenTL::GC_ERROR lastErrorCode() noexcept
{
    return lastError.code;
}

const char *lastErrorText() noexcept
{
    return lastError.text;
}
