#pragma once

#include <chrono>

/// Decides how many features one call reads. The SDK ends the process of a camera that does not answer a call
/// within 5 s, so a call never contains more features than would be read in half of this time if all of them
/// were as slow as the slowest ones so far.
class CallSize
{
public:
    using Duration = std::chrono::steady_clock::duration;

    /// Returns the number of features for the next call. Begins with 2 and at most doubles, up to 25.
    int next() const { return m_next; }

    /// A call has read this number of features, at least 1.
    void wasRead(int count, Duration duration);

private:
    int m_next = 2;
    Duration m_slowest{}; // Longest time per feature so far.
};
