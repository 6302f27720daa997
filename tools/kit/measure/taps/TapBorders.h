#pragma once

#include "tools/kit/measure/taps/TapStack.h"

#include <vector>

/// How two neighbouring taps differ where they meet.
struct TapStep
{
    enum class Kind
    {
        Columns, ///< The second tap is on the right of `position`.
        Lines, ///< The second tap is below `position`.
        Interleaved ///< Both taps read pixels of the same zone in turn; there is no position.
    };

    unsigned first = 0; ///< Taps, from 0.
    unsigned second = 0;
    Kind kind = Kind::Columns;
    std::size_t position = 0; ///< First column or line of the second tap.
    double difference = 0; ///< Second minus first tap, in units of the pixel values.
    double ratio = 0; ///< Natural logarithm of second by first tap, without the dark level.
    double differenceError = 0; ///< Standard errors.
    double ratioError = 0;
};

/// Measures all steps of a picture. At a border of two zones, straight lines are fitted to narrow strips on
/// both sides, block of lines by block of lines, and extended to the border; the step is the median over the
/// blocks of the difference of both ends. So shading and the texture of the scene have little influence, and
/// defect pixels have none. The standard error follows from the median absolute deviation of the blocks.
/// @param darkLevel Value of a pixel without light, in units of the pixel values.
std::vector<TapStep> measureSteps(const TapPicture &picture, double darkLevel);
