#pragma once

#include "sdk/cvxcpp/Timing.h"

#include <cstddef>
#include <vector>

/// Number of hosts that are started before the running ones are served again.
constexpr std::size_t maxStarts = 4;

/// Returns the hosts to start now, given the time from which each may start (TimePoint::max() for a host that
/// runs). Prefers those that have been waiting longest, so that failing producers do not keep others from
/// their first start.
std::vector<std::size_t> chooseStarts(const std::vector<TimePoint> &startTimes, TimePoint now);
