#pragma once

#include "tools/kit/measure/taps/TapBorders.h"

#include <nlohmann/json_fwd.hpp>
#include <vector>

/// What the taps are compared with.
enum class TapReference
{
    Mean, ///< The mean of all taps.
    FirstTap
};

/// How the taps of a picture differ.
struct TapMeasurement
{
    struct Tap
    {
        double mean = 0; ///< See TapPicture::Tap.
        double noise = 0;
        /// Deviation from the reference, by the steps at the borders: relative to the signal in a bright
        /// picture, in units of the pixel values in a dark one.
        double deviation = 0;
    };

    bool isDark = false;
    TapReference reference = TapReference::Mean;
    double darkLevel = 0; ///< Subtracted for the relative numbers of a bright picture.
    double maxValue = 0; ///< Largest pixel value of the format.
    std::vector<Tap> taps;
    std::vector<TapStep> steps;
    double mismatch = 0; ///< Largest absolute deviation.

    /// Returns the step as a share of the signal in a bright picture, otherwise in units of pixel values.
    double stepOf(const TapStep &step) const;
    double errorOf(const TapStep &step) const;
    double largestStep() const; ///< Absolute.
};

/// Returns how the taps differ. The deviations are those that explain all steps best (least squares, weighted
/// by the standard errors).
TapMeasurement measureBright(const TapPicture &picture, double darkLevel, TapReference reference);
TapMeasurement measureDark(const TapPicture &picture, TapReference reference);

/// Returns why a picture is no reference for the gain, or for the black level; empty if it is one.
Sentence checkBright(const TapPicture &picture, double darkLevel);
Sentence checkDark(const TapPicture &picture);

/// Returns why the steps are too uncertain to set the gains; empty if they are not.
Sentence checkCertainty(const TapMeasurement &measurement);

/// Returns the mean of the taps, in units of the pixel values.
double meanLevel(const TapPicture &picture);

nlohmann::ordered_json toJson(const TapMeasurement &measurement);
