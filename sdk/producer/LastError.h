#pragma once

#include "sdk/gentl/GenTL.h"

#include <string>

/// Sets the calling thread's last error, which GCGetLastError returns, and returns its code.
/// Only the first 511 bytes of the message are kept.
GenTL::GC_ERROR fail(GenTL::GC_ERROR code, const char *message) noexcept;
GenTL::GC_ERROR fail(GenTL::GC_ERROR code, const std::string &message) noexcept;

// These functions report failures that several functions share. Each one sets the thread's last error and
// returns the code in its comment.
GenTL::GC_ERROR failMissingArgument(); ///< GC_ERR_INVALID_PARAMETER
GenTL::GC_ERROR failUnknownCommand(std::int32_t command); ///< GC_ERR_NOT_IMPLEMENTED
GenTL::GC_ERROR failNeverUpdated(); ///< GC_ERR_NOT_AVAILABLE
GenTL::GC_ERROR failIndex(std::uint32_t index, std::uint32_t count); ///< GC_ERR_INVALID_INDEX
GenTL::GC_ERROR failUnknownId(const std::string &id); ///< GC_ERR_INVALID_ID

/// Returns the code of the calling thread's last error, or GC_ERR_SUCCESS if there was none.
GenTL::GC_ERROR lastErrorCode() noexcept;

/// Returns the message of the calling thread's last error, or "No error." if there was none.
const char *lastErrorMessage() noexcept;
