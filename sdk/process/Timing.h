#pragma once

#include <chrono>

/// The clock that all intervals and timeouts of the library use.
using SteadyClock = std::chrono::steady_clock;
using TimePoint = SteadyClock::time_point;
using Milliseconds = std::chrono::milliseconds;
