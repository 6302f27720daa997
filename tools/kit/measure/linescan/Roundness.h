#pragma once

#include "tools/kit/measure/linescan/LineScanCamera.h"
#include "tools/kit/measure/linescan/LineScanInputs.h"
#include "tools/kit/measure/linescan/RoundTarget.h"
#include "tools/kit/measure/run/MeasureContext.h"

#include <chrono>
#include <vector>

/// The width to height of a round target in several pictures.
struct Roundness
{
    std::size_t images = 0; ///< Images that were searched.
    std::vector<RoundTarget> targets; ///< One of each picture that showed one; all of about the same width.
    double heightToWidth = 0; ///< The mean.
    double deviation = 0; ///< Standard deviation of single pictures.
    double turnDegrees = 0; ///< The mean; see RoundTarget::turnDegrees().

    /// Returns by how many percent the target is too tall; negative if it is too flat.
    double errorPercent() const { return (heightToWidth - 1) * 100; }

    /// Returns what the rate of the lines has to be multiplied with. A picture with too many lines per
    /// millimetre is too tall, so the rate has to become lower.
    double rateFactor() const { return 1 / heightToWidth; }
};

/// Below this, a target counts as round.
constexpr double roundEnoughPercent = 1;

/// Returns the mean of the targets whose width differs by less than a twentieth from the median. The list
/// must not be empty.
Roundness roundnessOf(const std::vector<RoundTarget> &targets, std::size_t images);

struct RoundnessOptions
{
    std::size_t targets = 8; ///< Pictures with a target that are wanted.
    std::size_t maxImages = 60; ///< Ends the search.
    TargetColumns columns;
};

/// Returns how long to wait for a picture: its lines take the longer the lower their rate is. A minute if
/// something else than the camera starts the lines.
std::chrono::milliseconds pictureLimit(const LineScanCamera &camera);

/// Measures the target in the pictures of a camera. Returns why that is not possible.
/// @param camera Its present settings.
Sentence measureRoundness(const MeasureContext &context, const LineScanCamera &camera,
    const RoundnessOptions &options, Roundness &roundness);

/// Returns the result as a sentence with what to do, for example "The circle is 8.0 % too tall: lower the
/// line rate from 10.800 kHz to 10.000 kHz."
Sentence roundnessSentence(const Roundness &roundness, const LineScanCamera &camera);

/// Returns the inputs for which the plan makes the target round: the speed, or with an encoder the movement
/// per pulse, that the target shows with the present settings of the camera. Nothing if the camera's line
/// rate is unknown.
std::optional<LineScanInputs> correctedInputs(
    const LineScanInputs &inputs, const LineScanCamera &camera, const Roundness &roundness);
