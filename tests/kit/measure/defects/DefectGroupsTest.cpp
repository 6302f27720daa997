#include "tools/kit/measure/defects/DefectGroups.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace {

using Shape = DefectGroup::Shape;

DefectMap mapOf(
    const std::vector<std::pair<std::uint32_t, std::uint32_t>> &places, std::uint32_t height = 100)
{
    DefectMap map;
    map.width = 100;
    map.height = height;
    for (const auto &[x, y] : places)
        map.pixels.push_back({x, y, DefectKind::Hot, 10});
    std::sort(map.pixels.begin(), map.pixels.end(), [](const DefectPixelEntry &a, const DefectPixelEntry &b) {
        return std::tie(a.y, a.x) < std::tie(b.y, b.x);
    });
    return map;
}

std::vector<std::pair<std::uint32_t, std::uint32_t>> stripe(Shape shape, std::uint32_t across,
    std::uint32_t from, std::uint32_t to, const std::vector<std::uint32_t> &gaps)
{
    std::vector<std::pair<std::uint32_t, std::uint32_t>> places;
    for (std::uint32_t i = from; i <= to; ++i)
        if (std::find(gaps.begin(), gaps.end(), i) == gaps.end())
            places.push_back(shape == Shape::Column ? std::pair(across, i) : std::pair(i, across));
    return places;
}

void expectGroup(const DefectGroup &group, Shape shape, std::uint32_t firstX, std::uint32_t firstY,
    std::uint32_t lastX, std::uint32_t lastY, std::size_t pixels)
{
    EXPECT_EQ(group.shape, shape);
    EXPECT_EQ(std::tuple(group.firstX, group.firstY, group.lastX, group.lastY, group.pixels),
        std::tuple(firstX, firstY, lastX, lastY, pixels));
}

} // namespace

TEST(DefectGroups, JoinsPixelsThatTouchEachOther)
{
    // A U, whose sides are connected by the last line only; two single pixels; two pixels at a corner.
    const std::vector<DefectGroup> groups = defectGroups(
        mapOf({{10, 10}, {12, 10}, {10, 11}, {12, 11}, {11, 12}, {40, 10}, {42, 10}, {99, 98}, {98, 99}}));
    ASSERT_EQ(groups.size(), 2U);
    expectGroup(groups[0], Shape::Cluster, 10, 10, 12, 12, 5);
    expectGroup(groups[1], Shape::Cluster, 98, 98, 99, 99, 2);
}

TEST(DefectGroups, FindsColumnsAndLinesWithGaps)
{
    auto places = stripe(Shape::Column, 30, 0, 99, {50, 51, 80});
    const auto line = stripe(Shape::Line, 40, 60, 75, {70});
    places.insert(places.end(), line.begin(), line.end());
    const auto tooShort = stripe(Shape::Column, 90, 0, 6, {});
    places.insert(places.end(), tooShort.begin(), tooShort.end());
    places.emplace_back(31, 20); // Touches the column only.
    const DefectMap map = mapOf(places);
    const std::vector<DefectGroup> groups = defectGroups(map);
    ASSERT_EQ(groups.size(), 3U);
    expectGroup(groups[0], Shape::Column, 30, 0, 30, 99, 97);
    expectGroup(groups[1], Shape::Line, 60, 40, 75, 40, 15);
    expectGroup(groups[2], Shape::Cluster, 90, 0, 90, 6, 7);
    const DefectCounts counts = countDefects(map, groups);
    EXPECT_EQ(counts.pixels, 97U + 15 + 7 + 1);
    EXPECT_EQ(counts.byKind[0], counts.pixels);
    EXPECT_EQ(std::tuple(counts.columns, counts.lines, counts.clusters), std::tuple(1U, 1U, 1U));
}

TEST(DefectGroups, HasOnlyClustersInALineScanSensor)
{
    const std::vector<DefectGroup> groups = defectGroups(mapOf(stripe(Shape::Line, 0, 10, 30, {}), 1));
    ASSERT_EQ(groups.size(), 1U);
    expectGroup(groups[0], Shape::Cluster, 10, 0, 30, 0, 21);
}
