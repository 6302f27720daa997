#pragma once

#include <cstdint>
#include <vector>

/// Why a pixel cannot be used.
enum class DefectKind : std::uint8_t
{
    Hot, ///< Too bright in the dark.
    Dead, ///< Hardly reacts to light.
    Stuck, ///< Always has the same value.
    Blinking, ///< Changes between levels.
    Deviating ///< Reacts to light much more or less than its neighbours.
};

/// One defect pixel, in pixels of the sensor at full resolution without mirroring: region offsets of the
/// camera are part of the coordinates.
struct DefectPixelEntry
{
    std::uint32_t x = 0;
    std::uint32_t y = 0;
    DefectKind kind = DefectKind::Hot;
    double deviation = 0; ///< In standard deviations of the good pixels' noise; how certain the finding is.
};

/// The defect pixels of one sensor. A line scan sensor has one line, which applies to all lines of a picture.
struct DefectMap
{
    std::uint32_t width = 0; ///< Pixels of the sensor, or of the region that was examined, with its offset.
    std::uint32_t height = 0; ///< 1 for a line scan sensor.
    std::vector<DefectPixelEntry> pixels; ///< Sorted by line, then by column, without repetition.

    bool isLineScan() const { return height == 1; }
};
