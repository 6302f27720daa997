#pragma once

#include "CvxCPP/CvxCPP.h"

#include <cstring>
#include <limits>
#include <string>

/// Hands a text out by the two-call protocol of CvxCPP.h.
inline CvxCPP::CvxError copyText(const std::string &text, char *buffer, unsigned &size)
{
    if (text.size() >= std::numeric_limits<unsigned>::max())
        return CvxCPP::CvxErrorFailed;
    const auto needed = static_cast<unsigned>(text.size() + 1); // With the closing NUL.
    if (buffer && size < needed)
        return CvxCPP::CvxErrorBufferTooSmall;
    if (buffer)
        std::memcpy(buffer, text.c_str(), needed);
    size = needed;
    return CvxCPP::CvxErrorSuccess;
}
