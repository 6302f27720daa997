#pragma once

#include "sdk/gentl/GenTL.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

/// A callable that calls an "ID" or "Info" function with these outputs. An "ID" function ignores the type.
using InfoCall = std::function<GenTL::GC_ERROR(GenTL::INFO_DATATYPE *type, void *buffer, std::size_t *size)>;

/// Returns a callable that calls an "Info" function with these leading arguments, which have to outlive the
/// callable.
template <typename Function, typename... Arguments>
InfoCall infoCall(Function function, Arguments... arguments)
{
    return [=](GenTL::INFO_DATATYPE *type, void *buffer, std::size_t *size) {
        return function(arguments..., type, buffer, size);
    };
}

/// Returns a callable that calls an "ID" function with these leading arguments, which have to outlive the
/// callable.
template <typename Function, typename... Arguments>
InfoCall idCall(Function function, Arguments... arguments)
{
    return [=](GenTL::INFO_DATATYPE *, void *buffer, std::size_t *size) {
        return function(arguments..., static_cast<char *>(buffer), size);
    };
}

// Each of these functions reads a value in two calls and checks all rules of this protocol: the size without
// a buffer; a buffer of the exact size, longer, one byte too short and of size 0; the type; missing outputs.
// A broken rule is a test failure.
std::string readId(const InfoCall &call);
std::string readString(const InfoCall &call);
std::vector<std::string> readStringList(const InfoCall &call); ///< An "ID" function.
std::int32_t readNumber(const InfoCall &call, GenTL::INFO_DATATYPE type); ///< The type has 32 bits.
std::uint64_t readLong(const InfoCall &call, GenTL::INFO_DATATYPE type); ///< The type has 64 bits.
bool readBool(const InfoCall &call);
std::string readBuffer(const InfoCall &call);

/// Calls without a buffer, which requests only the size, and returns the error code.
GenTL::GC_ERROR codeOf(const InfoCall &call);
