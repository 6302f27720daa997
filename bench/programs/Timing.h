#pragma once

#include <algorithm>
#include <chrono>
#include <fstream>
#include <string>
#include <sys/resource.h>
#include <vector>

using Clock = std::chrono::steady_clock;

inline double microsecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::micro>(Clock::now() - start).count();
}

/// Returns the processor time in microseconds that RUSAGE_SELF or RUSAGE_CHILDREN has used.
inline double processorTime(int who)
{
    rusage usage{};
    getrusage(who, &usage);
    const auto toMicroseconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) * 1e6 + static_cast<double>(time.tv_usec);
    };
    return toMicroseconds(usage.ru_utime) + toMicroseconds(usage.ru_stime);
}

inline double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.empty() ? 0 : values[values.size() / 2];
}

/// Calls `action` `count` times and returns the median of its duration in microseconds.
template <typename Action>
double medianDuration(int count, const Action &action)
{
    std::vector<double> durations;
    for (int index = 0; index < count; ++index) {
        const auto start = Clock::now();
        action();
        durations.push_back(microsecondsSince(start));
    }
    return median(std::move(durations));
}

/// Returns the memory of a process in bytes: its own pages, and its share of the pages that it shares.
inline double memoryOf(const std::string &process)
{
    std::ifstream file("/proc/" + process + "/smaps_rollup");
    std::string word;
    while (file >> word) {
        double kibibytes = 0;
        if (word == "Pss:" && file >> kibibytes)
            return kibibytes * 1024;
    }
    return 0;
}
