#include "tools/kit/measure/defects/DefectGroups.h"

#include <algorithm>
#include <numeric>
#include <tuple>

namespace {

using Shape = DefectGroup::Shape;
constexpr std::uint32_t maxGap = 2; // Pixels of a column that were not found.

/// A pixel of the map that can be sorted by column and line.
struct Place
{
    std::uint32_t across; // Column of a pixel, while columns are searched.
    std::uint32_t along;
    std::size_t index; // Index of the pixel in the map.
};

void add(DefectGroup &group, const DefectPixelEntry &pixel)
{
    if (group.pixels == 0)
        group = {group.shape, pixel.x, pixel.y, pixel.x, pixel.y, 0};
    group.firstX = std::min(group.firstX, pixel.x);
    group.firstY = std::min(group.firstY, pixel.y);
    group.lastX = std::max(group.lastX, pixel.x);
    group.lastY = std::max(group.lastY, pixel.y);
    ++group.pixels;
}

/// Adds the columns or the lines, and marks their pixels as used.
void findStripes(
    const DefectMap &map, Shape shape, std::vector<char> &isUsed, std::vector<DefectGroup> &groups)
{
    std::vector<Place> places;
    for (std::size_t i = 0; i < map.pixels.size(); ++i) {
        const DefectPixelEntry &pixel = map.pixels[i];
        if (!isUsed[i])
            places.push_back(
                shape == Shape::Column ? Place{pixel.x, pixel.y, i} : Place{pixel.y, pixel.x, i});
    }
    std::sort(places.begin(), places.end(), [](const Place &a, const Place &b) {
        return std::tie(a.across, a.along) < std::tie(b.across, b.along);
    });
    for (std::size_t first = 0; first < places.size();) {
        std::size_t end = first + 1;
        while (end < places.size() && places[end].across == places[first].across
            && places[end].along - places[end - 1].along <= maxGap + 1)
            ++end;
        if (end - first >= minColumnLength) {
            DefectGroup group{shape};
            for (std::size_t i = first; i < end; ++i) {
                add(group, map.pixels[places[i].index]);
                isUsed[places[i].index] = 1;
            }
            groups.push_back(group);
        }
        first = end;
    }
}

/// The connected components of the pixels that are not used yet, by merging sets.
class Components
{
public:
    Components(const DefectMap &map, const std::vector<char> &isUsed)
        : m_map(map), m_isUsed(isUsed), m_roots(map.pixels.size())
    {
        std::iota(m_roots.begin(), m_roots.end(), std::size_t{0});
        for (std::size_t i = 0; i < m_roots.size(); ++i) {
            if (!isUsed[i])
                joinNeighbours(i);
        }
    }

    std::size_t root(std::size_t index)
    {
        while (m_roots[index] != index)
            index = m_roots[index] = m_roots[m_roots[index]];
        return index;
    }

private:
    /// Joins a pixel with the next one and with the three ones in the line below.
    void joinNeighbours(std::size_t index)
    {
        const DefectPixelEntry &pixel = m_map.pixels[index];
        if (index + 1 < m_roots.size() && m_map.pixels[index + 1].y == pixel.y
            && m_map.pixels[index + 1].x == pixel.x + 1)
            join(index, index + 1);
        const std::uint32_t left = pixel.x > 0 ? pixel.x - 1 : 0;
        const auto before = [](const DefectPixelEntry &a, const std::pair<std::uint32_t, std::uint32_t> &b) {
            return std::tie(a.y, a.x) < std::tie(b.first, b.second);
        };
        const auto first = std::lower_bound(
            m_map.pixels.begin(), m_map.pixels.end(), std::pair(pixel.y + 1, left), before);
        for (auto next = first;
             next != m_map.pixels.end() && next->y == pixel.y + 1 && next->x <= pixel.x + 1; ++next)
            join(index, static_cast<std::size_t>(next - m_map.pixels.begin()));
    }

    void join(std::size_t a, std::size_t b)
    {
        if (m_isUsed[a] || m_isUsed[b])
            return;
        const auto [low, high] = std::minmax({root(a), root(b)});
        m_roots[high] = low;
    }

    const DefectMap &m_map;
    const std::vector<char> &m_isUsed;
    std::vector<std::size_t> m_roots;
};

void findClusters(const DefectMap &map, const std::vector<char> &isUsed, std::vector<DefectGroup> &groups)
{
    Components components(map, isUsed);
    std::vector<DefectGroup> clusters(map.pixels.size());
    for (std::size_t i = 0; i < map.pixels.size(); ++i) {
        if (!isUsed[i])
            add(clusters[components.root(i)], map.pixels[i]);
    }
    std::copy_if(clusters.begin(), clusters.end(), std::back_inserter(groups),
        [](const DefectGroup &cluster) { return cluster.pixels > 1; });
}

} // namespace

std::vector<DefectGroup> defectGroups(const DefectMap &map)
{
    std::vector<DefectGroup> groups;
    std::vector<char> isUsed(map.pixels.size());
    if (!map.isLineScan())
        for (const Shape shape : {Shape::Column, Shape::Line})
            findStripes(map, shape, isUsed, groups);
    findClusters(map, isUsed, groups);
    return groups;
}

DefectCounts countDefects(const DefectMap &map, const std::vector<DefectGroup> &groups)
{
    DefectCounts counts;
    counts.pixels = map.pixels.size();
    for (const DefectPixelEntry &pixel : map.pixels)
        ++counts.byKind.at(static_cast<std::size_t>(pixel.kind));
    for (const DefectGroup &group : groups) {
        std::size_t *const byShape[] = {&counts.clusters, &counts.columns, &counts.lines};
        ++*byShape[static_cast<std::size_t>(group.shape)];
    }
    return counts;
}
