#pragma once

#include "sdk/image/DefectMap.h"

#include <array>
#include <cstddef>
#include <vector>

/// Defect pixels that belong together: a cluster of pixels that touch each other, at a side or a corner, or a
/// part of a column or of a line of the sensor.
struct DefectGroup
{
    enum class Shape
    {
        Cluster,
        Column,
        Line
    };
    Shape shape = Shape::Cluster;
    std::uint32_t firstX = 0; ///< Left edge of the rectangle that contains the pixels.
    std::uint32_t firstY = 0;
    std::uint32_t lastX = 0;
    std::uint32_t lastY = 0;
    std::size_t pixels = 0;
};

/// Columns and lines are at least this long, in pixels.
constexpr std::uint32_t minColumnLength = 8;

/// Returns the groups of two pixels or more: first columns, then lines, then clusters, each in the order of
/// their first pixels. Columns and lines may have gaps of two pixels; their pixels belong to no cluster.
std::vector<DefectGroup> defectGroups(const DefectMap &map);

/// Number of defects by kind and of groups.
struct DefectCounts
{
    std::array<std::size_t, 5> byKind{}; ///< Index: DefectKind.
    std::size_t pixels = 0;
    std::size_t clusters = 0;
    std::size_t columns = 0;
    std::size_t lines = 0;
};
DefectCounts countDefects(const DefectMap &map, const std::vector<DefectGroup> &groups);
