#pragma once

#include "sdk/imagefile/CameraRecord.h"
#include "tools/kit/measure/linescan/LineRatePlan.h"
#include "tools/kit/measure/linescan/Roundness.h"

/// All that the tool has calculated, set and measured.
struct LineScanResult
{
    LineScanInputs inputs;
    LineRatePlan plan;
    std::vector<PlannedSetting> written; ///< What was changed in the camera, in this order.
    std::optional<Roundness> before; ///< The target before the correction.
    std::optional<Roundness> after; ///< The last measurement.
};

nlohmann::ordered_json toJson(const Roundness &roundness);

/// Returns the content of the result file.
nlohmann::ordered_json resultJson(const LineScanResult &result, const CameraRecord &camera);

/// Returns a table of the settings, planned and written, and of the measured targets, with commas and points,
/// and with a header line for each of the two parts.
std::string resultCsv(const LineScanResult &result);

/// Returns the name of the table that belongs to a result file: with the ending ".csv".
std::string tablePath(const std::string &resultPath);

/// Writes the table. Returns why that failed; empty if it succeeded.
std::string writeLineScanCsv(const std::string &path, const LineScanResult &result);
