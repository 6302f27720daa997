#pragma once

#include "sdk/gentl/GenTL.h"

#include <cstdint>
#include <functional>
#include <string>

/// An "ID" or "Info" function with all arguments but its outputs. An "ID" function ignores the type.
using InfoCall = std::function<GenTL::GC_ERROR(GenTL::INFO_DATATYPE *type, void *buffer, std::size_t *size)>;

/// Returns a call of an "Info" function with these leading arguments, which have to outlive the call.
template <typename Function, typename... Arguments>
InfoCall infoCall(Function function, Arguments... arguments)
{
    return [=](GenTL::INFO_DATATYPE *type, void *buffer, std::size_t *size) {
        return function(arguments..., type, buffer, size);
    };
}

/// Returns a call of an "ID" function with these leading arguments.
template <typename Function, typename... Arguments>
InfoCall idCall(Function function, Arguments... arguments)
{
    return [=](GenTL::INFO_DATATYPE *, void *buffer, std::size_t *size) {
        return function(arguments..., static_cast<char *>(buffer), size);
    };
}

// Each reads a value by the two-call protocol and checks all of its rules: the size without a buffer; a
// buffer of the exact size, longer, one byte too short and of size 0; the type; missing outputs. A broken
// rule is a test failure.
std::string readId(const InfoCall &call);
std::string readString(const InfoCall &call);
std::int32_t readNumber(const InfoCall &call, GenTL::INFO_DATATYPE type); ///< A type of 32 bits.

/// Returns the error code of a call that only asks for the size.
GenTL::GC_ERROR codeOf(const InfoCall &call);
