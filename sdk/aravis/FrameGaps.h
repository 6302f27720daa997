#pragma once

#include <cstdint>
#include <optional>

/// Counts the images that are missing between the images that have arrived. Not thread-safe.
class FrameGaps
{
public:
    /// Returns the number of images that are missing between the previous images and this one. A 16-bit
    /// number, which never is 0, starts again after 65535. A number that is a little lower than the previous
    /// one belongs to an image that is late, for example because its packets were sent again. Any other lower
    /// number is a restart of the camera.
    std::uint64_t missingBefore(std::uint64_t frameId);

    /// Returns the number that the next image has if no image is missing, or 0 if there was no image yet.
    std::uint64_t expectedId() const;

private:
    std::optional<std::uint64_t> m_last; // ID of the last image that was not late.
};
