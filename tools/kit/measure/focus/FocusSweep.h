#pragma once

#include "tools/kit/measure/focus/FocusCamera.h"
#include "tools/kit/measure/focus/FocusMeter.h"
#include "tools/kit/measure/focus/FocusSeries.h"
#include "tools/kit/measure/run/MeasureContext.h"

#include <chrono>
#include <vector>

struct SweepOptions
{
    FocusOptions focus;
    std::chrono::milliseconds settle{100}; ///< What the lens needs after a movement.
    std::size_t coarseSteps = 21; ///< Positions over the whole range.
    std::size_t fineSteps = 33; ///< Positions around the coarse peak.
};

struct SweepResult
{
    FocusAxis axis;
    double startPosition = 0;
    double bestPosition = 0; ///< Where the lens is now.
    std::vector<FocusSample> coarse;
    std::vector<FocusSample> fine;
    FocusAnalysis analysis; ///< The analysis of the fine samples.
    FocusMeasurement last; ///< At the best position.
};

/// Searches the best position with the camera's motor: measures positions over the whole range, then more
/// closely around the peak, always in the direction of rising positions, so that play of the mechanics has no
/// effect. Leaves the lens at the best position; if the search fails or is cancelled, whoever runs the
/// measurement puts the lens back. Returns why the search failed; empty if it succeeded.
Sentence sweepFocus(const MeasureContext &context, const SweepOptions &options, SweepResult &result);
