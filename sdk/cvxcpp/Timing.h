#pragma once

#include <chrono>

/// The clock of every rule about time in the library.
using SteadyClock = std::chrono::steady_clock;
using TimePoint = SteadyClock::time_point;
using Milliseconds = std::chrono::milliseconds;
