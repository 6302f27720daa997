#pragma once

#include "tools/kit/measure/focus/FocusCamera.h"
#include "tools/kit/measure/focus/FocusHistory.h"
#include "tools/kit/measure/focus/FocusSurface.h"
#include "tools/kit/measure/run/Sentence.h"

#include <string>

/// Returns what the person at the lens should do; empty for FocusHistory::Advice::None.
Sentence adviceSentence(FocusHistory::Advice advice);

/// The sentence for FocusHistory::isMoving().
Sentence movementSentence();

/// Returns where the picture is sharp as a whole, and which way the lens has to go from where it is.
/// @param position Where the lens is now.
Sentence bestPositionSentence(double best, double position, const FocusAxis &axis);

/// What the positions of a surface are.
struct SurfaceUnit
{
    bool isTime = false; ///< Seconds while the lens was turned by hand; otherwise positions of the lens.
    int decimals = 0;
};

/// Returns in which direction the focus is tilted, and by how much; or that it is not.
Sentence tiltSentence(const FocusSurface &surface, const SurfaceUnit &unit);

/// The sentence of an analysis without surface.
Sentence noTiltSentence();

/// Returns by how much the corners deviate from the centre; empty if the curvature is not significant.
Sentence curvatureSentence(const FocusSurface &surface, const SurfaceUnit &unit);

/// Returns the name of the direction for files: "right", "lower right", "lower" and so on, clockwise.
std::string directionName(double angle);

/// The corners of the grid, or the ends of a line.
struct GridCorner
{
    const char *name; ///< For files; in the code of a window, a text of its own.
    std::size_t region;
};
std::vector<GridCorner> gridCorners(const FocusGrid &grid);
