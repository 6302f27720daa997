#include "sdk/image/WideNumbers.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

void widen(FloatRange &range, double number)
{
    if (!std::isfinite(number))
        return;
    range.lowest = std::min(range.lowest, number);
    range.highest = std::max(range.highest, number);
}

} // namespace

double floatAt(const std::uint8_t *bytes, unsigned bits, bool isBigEndian)
{
    if (bits == 32) {
        const auto pattern = integerAt<std::uint32_t>(bytes, isBigEndian);
        float number = 0;
        std::memcpy(&number, &pattern, sizeof number);
        return number;
    }
    const auto pattern = integerAt<std::uint64_t>(bytes, isBigEndian);
    double number = 0;
    std::memcpy(&number, &pattern, sizeof number);
    return number;
}

double FloatRange::share(double number) const
{
    if (std::isnan(number) || highest <= lowest)
        return 0;
    // The differences of halves cannot overflow.
    const double share = (number / 2 - lowest / 2) / (highest / 2 - lowest / 2);
    return std::min(std::max(share, 0.0), 1.0);
}

std::array<FloatRange, 4> findFloatRanges(
    const RawImage &picture, const PixelLayout &layout, const PictureGeometry &geometry)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    std::array<FloatRange, 4> ranges;
    ranges.fill({infinity, -infinity});
    const unsigned components = layout.arrangement.components;
    const unsigned planes = layout.planes == Planes::Planar ? components : 1;
    const std::size_t bytes = layout.format.depth / 8U;
    for (unsigned plane = 0; plane < planes; ++plane) {
        for (std::uint32_t y = 0; y < picture.height; ++y) {
            const LinePlace place = geometry.line(plane, y);
            for (std::size_t i = 0; i < place.count; ++i) {
                const std::size_t offset = place.offset + i * bytes;
                if (offset + bytes > picture.size)
                    break;
                widen(ranges[planes == 1 ? i % components : plane],
                    floatAt(picture.data + offset, layout.format.depth, picture.isBigEndian));
            }
        }
    }
    return ranges;
}
