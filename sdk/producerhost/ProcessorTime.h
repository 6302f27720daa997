#pragma once

#include <chrono>
#include <cstdint>

/// Measures the processor time of all threads of this process since the construction.
class ProcessorTime
{
public:
    ProcessorTime() : m_start(ofProcess()) { }

    /// Returns the time in milliseconds, rounded.
    std::uint32_t milliseconds() const;

private:
    static std::chrono::nanoseconds ofProcess();

    std::chrono::nanoseconds m_start;
};
