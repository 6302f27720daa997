#pragma once

#include "sdk/image/DefectMap.h"
#include "sdk/image/RawImage.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <vector>

/// Which good neighbours replace the defect pixels of a picture. A defect pixel becomes the median of the
/// good pixels of the same colour around it; of an even number, the mean of the middle two, rounded up.
///
/// Pixels of the same colour have the distance `step` in each direction: 2 for Bayer patterns, 1 for grey.
/// The eight nearest ones serve, without those that are defective themselves or outside of the picture. If
/// fewer than three remain, as in clusters and wide columns, the next ring of pixels serves too, and so on up
/// to `maxRings`. A pixel without any good neighbour up to there stays as it is. The neighbours of a line
/// scan sensor are in the same line, and two of them are enough.
class DefectRepairs
{
public:
    static constexpr int maxRings = 8;
    /// Neighbours that replace one pixel: those of the last ring, and the few of the rings before.
    static constexpr std::size_t maxNeighbours = 8 * maxRings + 2;

    /// Distance of a neighbour from the defect pixel.
    struct Neighbour
    {
        std::int8_t x;
        std::int8_t y;
    };

    struct Repair
    {
        std::uint32_t x; ///< Column in the picture.
        std::uint32_t y; ///< 0 for a line scan sensor, whose repairs apply to all lines.
        std::uint32_t firstNeighbour;
        std::uint32_t neighbourCount; ///< At least 1.
    };

    /// Some repairs, one after the other.
    struct Range
    {
        const Repair *first;
        const Repair *last; ///< One past the end.
        const Repair *begin() const { return first; }
        const Repair *end() const { return last; }
        bool isEmpty() const { return first == last; }
    };

    DefectRepairs() = default;

    /// @param place The picture on the sensor.
    DefectRepairs(const DefectMap &map, const Region &place, int step);

    /// Returns all repairs.
    Range all() const { return {m_repairs.data(), m_repairs.data() + m_repairs.size()}; }

    /// Returns the repairs of a part of line `y`.
    Range inLine(std::uint32_t y, std::uint32_t x, std::uint32_t width) const;

    /// Returns the median of the neighbours in line `y`. `valueAt` returns the value of a pixel.
    template <typename Value, typename ValueAt>
    Value median(const Repair &repair, std::uint32_t y, const ValueAt &valueAt) const;

private:
    bool m_isLineScan = false;
    std::vector<Repair> m_repairs; ///< Sorted by line, then by column.
    std::vector<Neighbour> m_neighbours;
};

template <typename Value, typename ValueAt>
Value DefectRepairs::median(const Repair &repair, std::uint32_t y, const ValueAt &valueAt) const
{
    std::array<Value, maxNeighbours> values;
    const std::size_t count = repair.neighbourCount;
    for (std::size_t i = 0; i < count; ++i) {
        const Neighbour &neighbour = m_neighbours[repair.firstNeighbour + i];
        values[i] = valueAt(static_cast<std::uint32_t>(std::int64_t(repair.x) + neighbour.x),
            static_cast<std::uint32_t>(std::int64_t(y) + neighbour.y));
    }
    std::sort(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(count));
    const Value high = values[count / 2];
    const Value low = values[(count - 1) / 2]; // The same one of an odd number.
    constexpr int rounding = std::is_integral_v<Value> ? 1 : 0;
    return static_cast<Value>((low + high + rounding) / 2);
}
