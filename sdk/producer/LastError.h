#pragma once

#include "sdk/gentl/GenTL.h"

#include <string>

/// Records a failure as the calling thread's last error, for GCGetLastError, and returns the code.
/// Texts over 511 bytes are cut.
GenTL::GC_ERROR fail(GenTL::GC_ERROR code, const char *text) noexcept;
GenTL::GC_ERROR fail(GenTL::GC_ERROR code, const std::string &text) noexcept;

/// The calling thread's last failure; success while there was none.
GenTL::GC_ERROR lastErrorCode() noexcept;
const char *lastErrorText() noexcept;
