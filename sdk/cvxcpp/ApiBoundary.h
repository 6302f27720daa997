#pragma once

#include "CvxCPP/CvxCPP.h"

#include <exception>

/// Runs the body of a public function. Returns CvxErrorFailed if it throws because no memory, thread or
/// descriptor is left: no exception of ours reaches the program.
template <typename Body>
CvxCPP::CvxError guarded(const Body &body)
{
    try {
        return body();
    } catch (const std::exception &) {
        return CvxCPP::CvxErrorFailed;
    }
}
