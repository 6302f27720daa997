#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// How a process ended, from the status that waitpid() gives: "was ended by SIGSEGV (Segmentation fault)".
/// Any other number says no more than that it ended.
std::string exitReason(int status);

/// A GenTL failure in words: "TLOpen failed with -1010 (GC_ERR_IO): no link". A code of 0 stands for a
/// failure that is not one of the producer's codes: "dlopen failed: no such file".
std::string callReason(std::string_view call, std::int32_t code, std::string_view text);
