#pragma once

#include "sdk/image/DefectMap.h"
#include "sdk/imagefile/CameraRecord.h"
#include "sdk/imagefile/MapOrigin.h"

#include <optional>
#include <string>
#include <vector>

/// Files of defect maps: JSON with everything, or CSV for spreadsheets and other programs.
///
/// The JSON file is an object with "format" ("corvix-x-defect-map"), "version" (1), "created", the members of
/// cameraJson(), "width", "height" and "pixels". Each pixel is a list [x, y, kind, deviation]; the kinds are
/// "hot", "dead", "stuck", "blinking" and "deviating".
///
/// The CSV file has the header "x,y,kind,deviation" and a line for each pixel. It does not contain the size
/// of the sensor. In the map of a line scan sensor, y is empty, because the pixel is defective in all lines.
/// Kind and deviation may be empty or missing.

/// The text of a kind in both files, for example "hot".
const char *defectKindText(DefectKind kind);

/// Returns the kind of a text, or nothing if there is no such kind.
std::optional<DefectKind> defectKind(const std::string &text);

/// Writes the JSON file; an existing one is replaced. Returns why that failed, for people; empty if it
/// succeeded.
/// @param more Further members for the end of the object, for example the conditions of the measurement.
std::string writeDefectMapJson(const std::string &path, const DefectMap &map, const CameraRecord &camera,
    const nlohmann::ordered_json &more = nlohmann::ordered_json::object());

/// Writes the CSV file; an existing one is replaced. Returns why that failed; empty if it succeeded.
std::string writeDefectMapCsv(const std::string &path, const DefectMap &map);

/// A defect map that was read from a file.
struct DefectMapReading
{
    std::optional<DefectMap> map; ///< Sorted and without repetition, whatever the file contains.
    MapOrigin origin;
    std::string problem; ///< Why there is no map, for people.
};

/// Reads a JSON or CSV file. Width and height of a map from a CSV file are 0, because they are not known; the
/// height is 1 for a line scan sensor. Maps of more than 500000 pixels are refused.

DefectMapReading readDefectMap(const std::string &path);
