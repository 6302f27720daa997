#pragma once

#include <chrono>
#include <cstddef>

/// Decides how many features are read with one call, so that the call takes about a fifth of a second. The
/// size starts at 2, at most doubles with each fast answer, and falls at once after a slow one. The SDK ends
/// the process of a camera that does not answer one call within 5 s, so a call never contains more features
/// than would be read in half of this time if all of them were as slow as the slowest ones so far.
class ReadBatch
{
public:
    using Duration = std::chrono::steady_clock::duration;

    static constexpr std::size_t firstSize = 2;
    static constexpr std::size_t maxSize = 64;

    /// Returns the number of features for the next call, 1 to maxSize.
    std::size_t size() const { return m_size; }

    /// A call has read this number of features, at least 1.
    void wasRead(std::size_t count, Duration duration);

private:
    std::size_t m_size = firstSize;
    Duration m_slowest{}; // Longest time per feature so far.
};
