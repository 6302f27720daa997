#pragma once

#include "sdk/simulator/PixelPacking.h"
#include "sdk/simulator/RenderSettings.h"

#include <cstdint>

/// Returns true if lines of the pattern differ, apart from the mosaic of colours.
bool changesVertically(TestPattern pattern);

/// Writes one line of a test pattern other than Off and FrameCounter. `y` is the line in the picture without
/// a region.
void testPatternLine(const RenderSettings &settings, const PackedFormat &format, PictureSize size, int y,
    std::uint16_t *values);

/// Writes the part of the frame number that lies in line `y` of the region.
void addFrameCounter(
    const RenderSettings &settings, const PackedFormat &format, int y, std::uint16_t *values);
