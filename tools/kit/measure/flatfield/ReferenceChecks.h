#pragma once

#include "tools/kit/measure/flatfield/FrameStack.h"
#include "tools/kit/measure/run/Sentence.h"

#include <vector>

/// What is wrong with the dark or the bright images.
struct ReferenceFinding
{
    bool isFatal = false; ///< True if no correction can be made of these images.
    Sentence sentence;
};
using ReferenceFindings = std::vector<ReferenceFinding>;

/// The levels of bright images that are recommended, as shares of the range of values.
constexpr double lowestGoodLevel = 0.5;
constexpr double highestGoodLevel = 0.8;
constexpr double bestLevel = 0.7;

/// Fewer images leave too much noise in the correction.
constexpr std::size_t minReferenceImages = 4;

/// Checks images that should show no light: light, cut-off black, few images, noise below one value.
ReferenceFindings checkDarkImages(const FrameStack &dark);

/// Checks images that should show an evenly lit surface: level, clipping, changes between the images, and
/// structure that is no shading.
/// @param dark The dark images that belong to them, of the same format.
ReferenceFindings checkBrightImages(const FrameStack &bright, const FrameStack &dark);

/// Returns the first fatal sentence; empty if there is none.
Sentence fatalSentence(const ReferenceFindings &findings);
