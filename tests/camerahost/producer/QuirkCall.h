#pragma once

#include "sdk/gentl/GenTLDevice.h"
#include "tests/camerahost/producer/QuirkCamera.h"

#include <functional>
#include <string>

/// A value that an info command returns, or an error.
struct Info
{
    GenTL::INFO_DATATYPE type = GenTL::INFO_DATATYPE_UNKNOWN;
    std::uint64_t number = 0;
    std::string text; // For strings.
    GenTL::GC_ERROR error = GenTL::GC_ERR_SUCCESS;
};

inline Info noInfo(GenTL::GC_ERROR error)
{
    return {GenTL::INFO_DATATYPE_UNKNOWN, 0, {}, error};
}

/// Performs the action of the script for this call. If the action does not end the call, runs the body, which
/// may unlock the mutex.
GenTL::GC_ERROR call(const char *function, const std::string &detail,
    const std::function<GenTL::GC_ERROR(std::unique_lock<std::mutex> &)> &body);

/// The same for a call that the producer also logs.
GenTL::GC_ERROR loggedCall(const char *function, const std::string &detail,
    const std::function<GenTL::GC_ERROR(std::unique_lock<std::mutex> &)> &body);

/// Where an info function stores its answer.
struct InfoTarget
{
    GenTL::INFO_DATATYPE *type;
    void *buffer;
    std::size_t *size;
};

/// Performs an info function: stores the value, or what the script wants instead of it.
GenTL::GC_ERROR infoCall(const char *function, const std::string &command, const InfoTarget &target,
    const std::function<Info()> &value);

/// Stores a string.
GenTL::GC_ERROR storeText(const std::string &text, char *buffer, std::size_t *size);

/// Logs that the consumer has broken a rule; the tests require that no such line exists.
void logViolation(const std::string &text);

/// Returns the error of the last call of this thread.
GenTL::GC_ERROR lastError();
