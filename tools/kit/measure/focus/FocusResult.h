#pragma once

#include "sdk/imagefile/CameraRecord.h"
#include "tools/kit/measure/focus/FocusCamera.h"
#include "tools/kit/measure/focus/FocusSeries.h"
#include "tools/kit/measure/focus/FocusSweep.h"

#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

/// Everything that is known about the focus of a camera, for files and reports.
struct FocusResult
{
    FocusMeasurement last; ///< The present picture.
    double peak = 0; ///< Highest sharpness; 0 if only one picture was measured.
    std::vector<std::optional<double>> regionShares; ///< Present shares of the regions' peaks.
    std::optional<FocusAxis> axis; ///< Nothing if the lens was turned by hand: positions are seconds then.
    std::optional<double> position; ///< Where the lens is, if it has a position.
    std::vector<FocusSample> samples; ///< In the order in which they were taken.
    std::optional<FocusAnalysis> analysis; ///< The analysis of the samples.
};

/// Returns the result of a search with the camera's motor.
FocusResult focusResult(const SweepResult &sweep);

nlohmann::ordered_json toJson(const FocusResult &result);

/// Returns the JSON file of the result.
nlohmann::ordered_json resultJson(const FocusResult &result, const CameraRecord &camera);

/// Returns the samples as a table: position or time, sharpness of the picture and of each region. Values of
/// regions that are too dark or clipped are empty.
std::string resultCsv(const FocusResult &result);

/// Writes resultCsv(). Returns why that failed; empty if it succeeded.
std::string writeFocusCsv(const std::string &path, const FocusResult &result);
