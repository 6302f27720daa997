#pragma once

#include <cstdint>
#include <optional>

/// Counts the images that are missing between the images that have arrived. Not thread-safe.
class FrameGaps
{
public:
    /// Returns the number of images that are missing between the previous image and this one. A number that
    /// is lower than the previous one is a restart of the camera, unless a 16-bit number, which never is 0,
    /// has started again after 65535.
    std::uint64_t missingBefore(std::uint64_t frameId);

private:
    std::optional<std::uint64_t> m_last;
};
