#pragma once

#include <cstdint>
#include <optional>

/// Counts the images that never arrived, by gaps in the frame IDs. Knows the 16-bit counters that continue
/// with 1 after 65535. A smaller ID otherwise means that the camera has started to count anew.
class FrameGapCounter
{
public:
    /// Returns the number of images that are missing between the previous image and this one. `frameId` is
    /// empty if the producer does not know it.
    std::uint64_t next(std::optional<std::uint64_t> frameId);

private:
    std::uint64_t missingBefore(std::uint64_t frameId) const;

    std::optional<std::uint64_t> m_last;
    bool m_isSixteenBit = true; // All IDs so far fit into 16 bits.
};
