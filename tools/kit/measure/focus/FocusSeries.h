#pragma once

#include "tools/kit/measure/focus/FocusMeasurement.h"
#include "tools/kit/measure/focus/FocusSurface.h"
#include "tools/kit/measure/focus/PeakFit.h"

#include <optional>
#include <vector>

/// A measurement and where the lens was.
struct FocusSample
{
    double position = 0; ///< Position of the lens, or the time in seconds if the lens has no position.
    FocusMeasurement measurement;
};

/// What the sharpness at many positions of the lens says about the focus.
struct FocusAnalysis
{
    /// One region of the grid.
    struct RegionPeak
    {
        std::optional<FocusPeak> peak; ///< Nothing if the region has no edges or no peak.
        double shareAtBest = 0; ///< Share of its peak that the region has at the best position.
    };

    std::optional<FocusPeak> total; ///< Peak of the whole picture; nothing if there is no peak.
    std::vector<RegionPeak> regions; ///< Line by line.
    std::optional<FocusSurface> surface; ///< Nothing if too few regions have a peak.

    /// Where the picture is sharp as a whole: the mean position of the surface, or the peak of the whole
    /// picture if there is no surface.
    std::optional<double> best;
};

/// Finds the peaks of the whole picture and of each region, and fits the surface of the focus to them.
/// Samples that are too dark or overexposed are left out; all have the same grid.
FocusAnalysis analyseFocus(const std::vector<FocusSample> &samples);
