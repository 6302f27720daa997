#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// One direction of the region that a camera sends, in pixels after binning.
struct RegionAxis
{
    std::int64_t offset = 0;
    std::int64_t size = 0;

    bool operator==(const RegionAxis &other) const { return offset == other.offset && size == other.size; }
};

/// What a camera allows in one direction.
struct RegionAxisLimits
{
    std::int64_t extent = 0; ///< The highest possible sum of offset and size.
    std::int64_t minimumSize = 1;
    std::int64_t maximumSize = 0; ///< At most the extent.
    std::int64_t sizeIncrement = 1;
    std::int64_t minimumOffset = 0;
    std::int64_t offsetIncrement = 1;
    bool hasOffset = true; ///< False if the camera has no feature for the offset.
};

/// Which of the two features of an axis is written.
enum class RegionPart : std::uint8_t
{
    Offset,
    Size
};

struct RegionWrite
{
    RegionPart part = RegionPart::Offset;
    std::int64_t value = 0;

    bool operator==(const RegionWrite &other) const { return part == other.part && value == other.value; }
};

/// The limits that a camera reports for the two features of an axis.
struct ReportedAxis
{
    RegionAxis present;
    std::int64_t minimumSize = 1;
    std::int64_t maximumSize = 0; ///< At the present offset.
    std::int64_t sizeIncrement = 1;
    std::int64_t minimumOffset = 0;
    std::int64_t maximumOffset = 0; ///< At the present size.
    std::int64_t offsetIncrement = 1;
    bool hasOffset = true;
};

/// Returns the limits that do not depend on the present region. Cameras reduce the maximum of the size by the
/// offset, the maximum of the offset by the size, or both.
RegionAxisLimits axisLimits(const ReportedAxis &reported);

/// Returns the smallest region that the camera allows and that contains the drawn pixels. If there is none,
/// returns the largest one at that place.
/// @param drawn Pixels of the sensor: the first one, and their number.
RegionAxis snapAxis(const RegionAxis &drawn, const RegionAxisLimits &limits);

/// Returns the whole sensor.
RegionAxis wholeAxis(const RegionAxisLimits &limits);

/// Returns the writes from one region to another in an order in which each of them is within the limits.
/// Values that stay the same are not written.
std::vector<RegionWrite> axisWrites(const RegionAxis &present, const RegionAxis &target);
