#include "tools/imageviewer/panel/RegionOfInterest.h"

#include <algorithm>

namespace {

/// Returns the highest value of the form `start` + n x `increment` that is not above the value.
std::int64_t roundDown(std::int64_t value, std::int64_t start, std::int64_t increment)
{
    return start + std::max<std::int64_t>(0, value - start) / increment * increment;
}

/// Returns the lowest value of the form `start` + n x `increment` that is not below the value.
std::int64_t roundUp(std::int64_t value, std::int64_t start, std::int64_t increment)
{
    return roundDown(value + increment - 1, start, increment);
}

} // namespace

RegionAxisLimits axisLimits(const ReportedAxis &reported)
{
    RegionAxisLimits limits;
    limits.minimumSize = reported.minimumSize;
    limits.sizeIncrement = std::max<std::int64_t>(1, reported.sizeIncrement);
    limits.hasOffset = reported.hasOffset;
    if (!reported.hasOffset) {
        limits.extent = reported.maximumSize;
        limits.maximumSize = reported.maximumSize;
        return limits;
    }
    limits.minimumOffset = reported.minimumOffset;
    limits.offsetIncrement = std::max<std::int64_t>(1, reported.offsetIncrement);
    // The maximum that does not depend on the other feature gives a sum that is too high.
    limits.extent = std::min(
        reported.present.offset + reported.maximumSize, reported.maximumOffset + reported.present.size);
    limits.maximumSize = limits.extent - limits.minimumOffset;
    return limits;
}

RegionAxis snapAxis(const RegionAxis &drawn, const RegionAxisLimits &limits)
{
    const std::int64_t end = std::min(drawn.offset + drawn.size, limits.extent);
    RegionAxis axis;
    axis.offset
        = limits.hasOffset ? roundDown(drawn.offset, limits.minimumOffset, limits.offsetIncrement) : 0;
    const std::int64_t largest = roundDown(limits.maximumSize, limits.minimumSize, limits.sizeIncrement);
    axis.size = std::min(roundUp(end - axis.offset, limits.minimumSize, limits.sizeIncrement), largest);
    if (limits.hasOffset && axis.offset + axis.size > limits.extent)
        axis.offset = roundDown(limits.extent - axis.size, limits.minimumOffset, limits.offsetIncrement);
    return axis;
}

RegionAxis wholeAxis(const RegionAxisLimits &limits)
{
    return {limits.hasOffset ? limits.minimumOffset : 0,
        roundDown(limits.maximumSize, limits.minimumSize, limits.sizeIncrement)};
}

std::vector<RegionWrite> axisWrites(const RegionAxis &present, const RegionAxis &target)
{
    // A region that shrinks fits at its present offset, and then at every new one. A region that grows fits
    // once it has been moved, and the present size fits there too.
    std::vector<RegionWrite> writes{{RegionPart::Offset, target.offset}, {RegionPart::Size, target.size}};
    if (target.size < present.size)
        std::reverse(writes.begin(), writes.end());
    const auto isSame = [&present](const RegionWrite &write) {
        return write.value == (write.part == RegionPart::Offset ? present.offset : present.size);
    };
    writes.erase(std::remove_if(writes.begin(), writes.end(), isSame), writes.end());
    return writes;
}
