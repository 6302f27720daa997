#pragma once

#include "sdk/imagefile/CameraRecord.h"
#include "tools/kit/measure/flatfield/FlatFieldResult.h"

#include <nlohmann/json.hpp>
#include <string>

/// Returns the JSON document with the camera, its settings and the numbers.
nlohmann::ordered_json flatFieldDocument(const FlatFieldResult &result, const CameraRecord &camera);

/// Writes the correction as a TIFF file, which also contains the numbers. Returns why that failed; empty if
/// it succeeded.
std::string writeFlatFieldResult(
    const std::string &path, const FlatFieldResult &result, const CameraRecord &camera);
