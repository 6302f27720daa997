#pragma once

#include "sdk/gentl/GenTL.h"

#include <cstdint>
#include <functional>
#include <string>

/// An "ID" or "Info" function with everything but its outputs filled in. An "ID" function ignores the type.
using InfoCall = std::function<GenTL::GC_ERROR(GenTL::INFO_DATATYPE *type, void *buffer, std::size_t *size)>;

/// Each asks by the two-call protocol and checks its every rule: the size without a buffer, a buffer that is
/// exactly long enough, longer, one byte too short and of no size, the type, and missing outputs. A broken
/// rule is a test failure. The value is what every one of these calls agreed upon.
std::string readId(const InfoCall &call);
std::string readText(const InfoCall &call);
std::int32_t readInt32(const InfoCall &call);
std::uint32_t readUint32(const InfoCall &call);

/// The code with which the call answers a plain question for the size.
GenTL::GC_ERROR codeOf(const InfoCall &call);
