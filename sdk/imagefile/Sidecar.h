#pragma once

#include "CvxCPP/Image.h"
#include "sdk/imagefile/CameraRecord.h"

#include <nlohmann/json.hpp>
#include <string>

/// The JSON file beside an image file or a recording. Its name is that of the file and ".json".

/// Returns the sidecar's name.
std::string sidecarPath(const std::string &path);

/// Returns the part of a sidecar that describes the camera and its settings.
nlohmann::ordered_json cameraJson(const CameraRecord &camera);

/// Returns the part of a sidecar that describes an image: its size, region, format, numbers and times.
nlohmann::ordered_json imageJson(const CvxCPP::Image &image);

/// Returns the UTC time at which an image was received, for example "2026-01-31T23:59:59.123456Z".
/// Does not follow later changes of the system's time.
/// @param receivedAt Nanoseconds of CLOCK_MONOTONIC; see ImageInfo.
std::string utcTime(std::uint64_t receivedAt);

/// Returns the present UTC time.
std::string utcNow();

/// Writes the JSON under a temporary name and renames it. Returns why that failed; empty if it succeeded.
std::string writeSidecar(const std::string &path, const nlohmann::ordered_json &json);
