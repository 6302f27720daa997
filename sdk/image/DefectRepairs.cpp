#include "sdk/image/DefectRepairs.h"

#include <cstdlib>

namespace {

constexpr std::size_t neededInPicture = 3;
constexpr std::size_t neededInLine = 2;

/// The defect pixels of a picture, for quick questions.
class DefectPlaces
{
public:
    DefectPlaces(const DefectMap &map, const Region &place)
        : m_width(place.width),
          m_height(map.isLineScan() ? 1 : place.height),
          m_isDefect(std::size_t(m_width) * m_height)
    { }

    std::size_t index(std::uint32_t x, std::uint32_t y) const { return std::size_t(y) * m_width + x; }
    void add(std::uint32_t x, std::uint32_t y) { m_isDefect[index(x, y)] = true; }

    bool isGood(std::int64_t x, std::int64_t y) const
    {
        return x >= 0 && y >= 0 && x < m_width && y < m_height
            && !m_isDefect[index(static_cast<std::uint32_t>(x), static_cast<std::uint32_t>(y))];
    }

    /// Appends the good pixels at the distance of `ring` steps.
    void appendRing(const DefectRepairs::Repair &repair, int ring, int step,
        std::vector<DefectRepairs::Neighbour> &neighbours) const;

private:
    std::uint32_t m_width;
    std::uint32_t m_height;
    std::vector<bool> m_isDefect;
};

void DefectPlaces::appendRing(const DefectRepairs::Repair &repair, int ring, int step,
    std::vector<DefectRepairs::Neighbour> &neighbours) const
{
    const int rows = m_height == 1 ? 0 : ring;
    for (int row = -rows; row <= rows; ++row) {
        const bool isWholeRow = std::abs(row) == ring;
        for (int column = -ring; column <= ring; column += isWholeRow ? 1 : 2 * ring) {
            const int x = column * step;
            const int y = row * step;
            if (isGood(std::int64_t(repair.x) + x, std::int64_t(repair.y) + y))
                neighbours.push_back({static_cast<std::int8_t>(x), static_cast<std::int8_t>(y)});
        }
    }
}

/// Returns the defect pixels inside the picture, without neighbours.
std::vector<DefectRepairs::Repair> repairsInside(const DefectMap &map, const Region &place)
{
    std::vector<DefectRepairs::Repair> result;
    for (const DefectPixelEntry &pixel : map.pixels) {
        const std::uint32_t x = pixel.x - place.x; // Left of the picture, it wraps around and is too large.
        const std::uint32_t y = map.isLineScan() ? 0 : pixel.y - place.y;
        if (x < place.width && y < place.height)
            result.push_back({x, y, 0, 0});
    }
    return result;
}

bool isBefore(const DefectRepairs::Repair &repair, const DefectRepairs::Repair &other)
{
    return repair.y != other.y ? repair.y < other.y : repair.x < other.x;
}

} // namespace

DefectRepairs::DefectRepairs(const DefectMap &map, const Region &place, int step)
    : m_isLineScan(map.isLineScan()), m_repairs(repairsInside(map, place))
{
    std::sort(m_repairs.begin(), m_repairs.end(), isBefore);
    DefectPlaces places(map, place);
    for (const Repair &repair : m_repairs)
        places.add(repair.x, repair.y);
    const std::size_t needed = m_isLineScan ? neededInLine : neededInPicture;
    for (Repair &repair : m_repairs) {
        const std::size_t first = m_neighbours.size();
        for (int ring = 1; ring <= maxRings && m_neighbours.size() - first < needed; ++ring)
            places.appendRing(repair, ring, step, m_neighbours);
        repair.firstNeighbour = static_cast<std::uint32_t>(first);
        repair.neighbourCount = static_cast<std::uint32_t>(m_neighbours.size() - first);
    }
    const auto isHopeless = [](const Repair &repair) { return repair.neighbourCount == 0; };
    m_repairs.erase(std::remove_if(m_repairs.begin(), m_repairs.end(), isHopeless), m_repairs.end());
}

DefectRepairs::Range DefectRepairs::inLine(std::uint32_t y, std::uint32_t x, std::uint32_t width) const
{
    const std::uint32_t line = m_isLineScan ? 0 : y;
    const auto first = std::lower_bound(m_repairs.begin(), m_repairs.end(), Repair{x, line, 0, 0}, isBefore);
    const auto last = std::lower_bound(first, m_repairs.end(), Repair{x + width, line, 0, 0}, isBefore);
    const Repair *const repairs = m_repairs.data();
    return {repairs + (first - m_repairs.begin()), repairs + (last - m_repairs.begin())};
}
