#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Describes how a process ended, for example "was ended by SIGSEGV (Segmentation fault)". `status` comes
/// from waitpid(). Returns "ended" if the status is neither an exit code nor a signal.
std::string exitReason(int status);

/// Describes a failed GenTL call, for example "TLOpen failed with -1010 (GC_ERR_IO): no link". If `code` is
/// 0, the failure has no GenTL code: "dlopen failed: no such file".
std::string callReason(std::string_view call, std::int32_t code, std::string_view text);
