#pragma once

#include "sdk/image/DefectMap.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

/// A pixel that deviates, perhaps enough to be a defect. Deviations are in standard deviations of the good
/// pixels; see DefectFinder.h.
struct DefectCandidate
{
    std::uint32_t x = 0; ///< In pixels of the sensor, like those of a DefectMap.
    std::uint32_t y = 0;
    float dark = 0; ///< Mean in the dark, compared with the neighbours.
    float bright = 0; ///< Mean in the light, compared with the neighbours.
    float blinking = 0; ///< Change from image to image, compared with the noise that is expected.
    float reaction = 0; ///< Reaction to light, relative to the neighbours; about 1 if the pixel is good.
    bool isConstant = false; ///< The value was the same in all images of both sets.
};

/// What both sets of images say about the sensor. Levels and spreads in values of the pixel format.
struct DefectFindings
{
    std::uint32_t width = 0; ///< Width of the map: region and offset.
    std::uint32_t height = 0;
    std::size_t examinedPixels = 0;
    double darkLevel = 0; ///< Median.
    double darkNoise = 0; ///< Standard deviation from image to image; median of all pixels.
    double darkSpread = 0; ///< Standard deviation of the good pixels' means; median of all parts.
    double brightLevel = 0;
    double brightNoise = 0;
    double brightSpread = 0;
    /// Sorted by line, then by column; the largest deviation of each is at least smallestThreshold.
    std::vector<DefectCandidate> candidates;
};

/// Pixels whose deviation is lower are never defects. Limits the number of candidates to about 60 per
/// megapixel and test.
constexpr double smallestThreshold = 4;

/// If the deviations are normally distributed, each of the three tests takes 0.002 good pixels per megapixel
/// for defects (2e-9). That leaves room for real sensors, whose spreads have longer tails.
constexpr double usualThreshold = 6;

/// Returns the deviation of the test that the candidate fails most clearly.
double largestDeviation(const DefectCandidate &candidate);

/// Returns what is wrong with the candidate at this threshold; no value if it is good.
std::optional<DefectKind> defectKind(const DefectCandidate &candidate, double threshold);

/// Returns the candidates that are defects at this threshold.
DefectMap defectMap(const DefectFindings &findings, double threshold);
