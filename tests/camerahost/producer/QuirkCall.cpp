#include "tests/camerahost/producer/QuirkCall.h"

#include "tests/camerahost/producer/QuirkScript.h"
#include "tests/sdk/producer/Misbehaviour.h"

#include <algorithm>
#include <cstring>
#include <sstream>

using namespace GenTL;

namespace {

thread_local GC_ERROR lastCode = GC_ERR_SUCCESS;
thread_local std::string currentAction;

/// Stores a number in its lowest `length` bytes.
GC_ERROR storeNumber(std::uint64_t number, std::size_t length, const InfoTarget &target)
{
    if (target.buffer && *target.size < length)
        return GC_ERR_BUFFER_TOO_SMALL;
    if (target.buffer)
        std::memcpy(target.buffer, &number, length);
    *target.size = length;
    return GC_ERR_SUCCESS;
}

std::size_t lengthOf(INFO_DATATYPE type)
{
    switch (type) {
    case INFO_DATATYPE_BOOL8:
        return 1;
    case INFO_DATATYPE_INT32:
        return 4;
    default:
        return 8;
    }
}

/// Applies the actions "value NUMBER" and "bytes LENGTH", which replace the value and the length.
GC_ERROR store(Info info, const InfoTarget &target)
{
    std::istringstream fields(currentAction);
    std::string verb;
    std::string argument;
    fields >> verb >> argument;
    if (verb == "value")
        info.error = GC_ERR_SUCCESS;
    if (info.error != GC_ERR_SUCCESS)
        return info.error;
    if (target.type)
        *target.type = info.type;
    if (info.type == INFO_DATATYPE_STRING)
        return storeText(
            verb == "value" ? argument : info.text, static_cast<char *>(target.buffer), target.size);
    if (verb == "value")
        info.number = std::stoull(argument, nullptr, 0);
    const std::size_t length = verb == "bytes" ? std::stoul(argument) : lengthOf(info.type);
    if (target.type && verb == "bytes")
        *target.type = length == 4 ? INFO_DATATYPE_UINT32 : INFO_DATATYPE_UINT64;
    return storeNumber(info.number, length, target);
}

} // namespace

GC_ERROR call(const char *function, const std::string &detail,
    const std::function<GC_ERROR(std::unique_lock<std::mutex> &)> &body)
{
    currentAction = QuirkScript::actionFor(function, detail);
    if (currentAction == "crash" || currentAction == "hang")
        QuirkScript::log(currentAction + " in " + function);
    lastCode = perform(currentAction);
    if (lastCode == continueCall) {
        std::unique_lock lock(mutex);
        lastCode = body(lock);
    }
    return lastCode;
}

GC_ERROR loggedCall(const char *function, const std::string &detail,
    const std::function<GC_ERROR(std::unique_lock<std::mutex> &)> &body)
{
    QuirkScript::log(detail.empty() ? function : function + (' ' + detail));
    return call(function, detail, body);
}

GC_ERROR infoCall(const char *function, const std::string &command, const InfoTarget &target,
    const std::function<Info()> &value)
{
    return call(
        function, command, [&](const std::unique_lock<std::mutex> &) { return store(value(), target); });
}

GC_ERROR storeText(const std::string &text, char *buffer, std::size_t *size)
{
    const std::size_t needed = text.size() + 1;
    if (buffer && *size < needed)
        return GC_ERR_BUFFER_TOO_SMALL;
    if (buffer)
        std::memcpy(buffer, text.c_str(), needed);
    *size = needed;
    return GC_ERR_SUCCESS;
}

void logViolation(const std::string &text)
{
    QuirkScript::log("violation: " + text);
}

GC_ERROR lastError()
{
    return lastCode;
}
