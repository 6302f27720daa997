#pragma once

#include "sdk/image/FlatField.h"
#include "sdk/imagefile/CameraRecord.h"
#include "sdk/imagefile/MapOrigin.h"

#include <optional>
#include <string>

/// Files of flat fields: TIFF with two grey pages of 32-bit floating-point samples, which are the offset and
/// the gain of each pixel. The description of the first page is a JSON object with "format"
/// ("corvix-x-flat-field"), "version" (1), "created", "offsetX", "offsetY", "width", "height", "depth",
/// "blackLevel" and the members of cameraJson(). The description of the second page says what it contains.

/// Writes the file; an existing one is replaced. Returns why that failed, for people; empty if it succeeded.
/// @param more Further members for the end of the object, for example the conditions of the measurement.
std::string writeFlatField(const std::string &path, const FlatField &field, const CameraRecord &camera,
    const nlohmann::ordered_json &more = nlohmann::ordered_json::object());

/// A flat field that was read from a file.
struct FlatFieldReading
{
    std::optional<FlatField> field; ///< Contains as many finite values as it has pixels.
    MapOrigin origin;
    std::string problem; ///< Why there is no flat field, for people.
};

/// Reads the file. Compressed files and fields of more than 2^28 pixels are refused.
FlatFieldReading readFlatField(const std::string &path);
