#pragma once

#include "sdk/gentl/GenTL.h"

#include <string>
#include <vector>

/// One call of a producer that went wrong, for the log of the process that asked.
struct Problem
{
    std::string call; ///< The function, for example "TLOpen".
    GenTL::GC_ERROR code = 0; ///< What it returned; 0 when the failure is not one of its codes.
    std::string text; ///< The producer's words or ours; may be empty, may be invalid UTF-8.
};

/// The call was given too little time.
bool isTimeout(const Problem &problem);

/// What was asked about is not there any more, which a list may have told of a moment ago.
bool isGone(const Problem &problem);

/// Adds a problem unless one with this call and code is there: a thousand devices may fail the same way.
void addProblem(std::vector<Problem> &problems, Problem problem);
