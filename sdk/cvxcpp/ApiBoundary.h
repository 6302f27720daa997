#pragma once

#include "CvxCPP/CvxCPP.h"

#include <exception>

/// Runs the body of a public function. Returns CvxErrorFailed if the body throws because no memory, thread
/// or descriptor is left, so that no exception of the library reaches the program.
template <typename Body>
CvxCPP::CvxError guarded(const Body &body)
{
    try {
        return body();
    } catch (const std::exception &) {
        return CvxCPP::CvxErrorFailed;
    }
}
