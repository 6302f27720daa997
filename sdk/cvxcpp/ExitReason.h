#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Describes how a process ended, from the status of waitpid(): "was ended by SIGSEGV (Segmentation fault)".
/// Returns "ended" if the status is neither an exit code nor a signal.
std::string exitReason(int status);

/// Describes a failed GenTL call: "TLOpen failed with -1010 (GC_ERR_IO): no link". A code of 0 means that the
/// failure has no GenTL code: "dlopen failed: no such file".
std::string callReason(std::string_view call, std::int32_t code, std::string_view text);
