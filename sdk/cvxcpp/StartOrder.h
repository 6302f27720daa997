#pragma once

#include "sdk/process/Timing.h"

#include <cstddef>
#include <vector>

/// The maximum number of hosts that are started before the running hosts are served again.
constexpr std::size_t maxStarts = 4;

/// Returns the hosts to start now, at most maxStarts. `startTimes` contains the time after which each host
/// may start, or TimePoint::max() for a running host. Prefers the hosts that have been waiting longest, so
/// that failing producers do not delay the first start of others.
std::vector<std::size_t> chooseStarts(const std::vector<TimePoint> &startTimes, TimePoint now);
