#pragma once

#include "sdk/protocol/DeviceMessages.h"
#include "sdk/protocol/Problem.h"

#include <string>

/// Returns a text for people about a failed call of a producer.
std::string describe(const Problem &problem);

/// Returns the failure of a request because of a failed call of a producer.
RequestFailedReply toFailure(const Problem &problem);
