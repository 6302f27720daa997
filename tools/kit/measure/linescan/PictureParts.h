#pragma once

#include "tools/kit/measure/linescan/GreyPicture.h"

#include <limits>
#include <vector>

/// Neighbouring pixels of one line that belong together.
struct PixelRun
{
    int y = 0;
    int first = 0;
    int last = 0; ///< Inclusive.
};

/// A connected part of a picture that is dark, or bright.
struct PicturePart
{
    bool isBright = false;
    std::vector<PixelRun> runs; ///< Sorted from top to bottom, then from left to right.
    int left = std::numeric_limits<int>::max();
    int right = 0; ///< Inclusive.
    int top = std::numeric_limits<int>::max();
    int bottom = 0; ///< Inclusive.

    int width() const { return right - left + 1; }
    int height() const { return bottom - top + 1; }
    bool touchesBorderOf(const GreyPicture &picture) const;
};

/// Returns the connected parts (of 8 neighbours) of both kinds that are at least `minSize` pixels wide and
/// high, from the largest to the smallest.
std::vector<PicturePart> pictureParts(const GreyPicture &picture, float threshold, int minSize);
