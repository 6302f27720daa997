#pragma once

#include "CvxCPP/CvxCPP.h"

#include <cstring>
#include <string>

/// Returns a string to a caller by the two-call protocol of CvxCPP.h.
inline CvxCPP::CvxError copyText(const std::string &text, char *buffer, unsigned &size)
{
    // The size includes the terminating NUL. The size fits into `unsigned`, because the text is part of a
    // message of limited length.
    const auto needed = static_cast<unsigned>(text.size() + 1);
    if (buffer && size < needed)
        return CvxCPP::CvxErrorBufferTooSmall;
    if (buffer)
        std::memcpy(buffer, text.c_str(), needed);
    size = needed;
    return CvxCPP::CvxErrorSuccess;
}
