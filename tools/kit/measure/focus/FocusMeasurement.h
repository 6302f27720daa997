#pragma once

#include "sdk/image/RawImage.h"
#include "tools/kit/measure/run/Sentence.h"

#include <cstddef>
#include <cstdint>
#include <vector>

/// How a picture is divided for the focus measurement.
struct FocusGrid
{
    static constexpr int min = 3;
    static constexpr int max = 9;

    int columns = 5; ///< 3 to 9.
    int rows = 5; ///< 3 to 9, or 1 for line scan cameras.

    std::size_t size() const { return static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows); }
    bool operator==(const FocusGrid &other) const { return columns == other.columns && rows == other.rows; }
    bool operator!=(const FocusGrid &other) const { return !(*this == other); }
};

/// One region of the grid.
struct RegionFocus
{
    enum class State : std::uint8_t
    {
        Usable,
        NoEdges, ///< Nothing in the region becomes sharp or blurred.
        TooDark,
        Clipped ///< Too many pixels have the maximum value.
    };

    Region area; ///< In pixels of the picture.
    State state = State::NoEdges;
    double sharpness = 0; ///< See FocusMeter.
    double brightness = 0; ///< Mean above the black level; 1 is the range of the pixel values.
    double clippedShare = 0; ///< Share of the pixels that have the maximum value.
    double centerX = 0; ///< Where the edges of the region are: their centre of gravity, in pixels.
    double centerY = 0;

    bool isUsable() const { return state == State::Usable; }
};

/// The sharpness of one picture.
struct FocusMeasurement
{
    FocusGrid grid;
    std::uint32_t width = 0; ///< Pixels.
    std::uint32_t height = 0;
    std::vector<RegionFocus> regions; ///< Line by line.
    double sharpness = 0; ///< Sharpness of the whole picture; see FocusMeter.
    double brightness = 0; ///< Brightness of the whole picture; see RegionFocus.
    double clippedShare = 0;
    double noise = 0; ///< Standard deviation of the pixels' noise, relative to the brightness.
    bool isExposed = false; ///< Neither too dark nor overexposed: the sharpness is right, even if it is low.
    Sentence problem; ///< Why the sharpness says nothing, and what to do; empty if it does.

    /// The picture has edges, and its sharpness is right.
    bool isUsable() const { return problem.isEmpty() && !regions.empty(); }
};
