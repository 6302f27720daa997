#pragma once

#include "sdk/camerahost/DescriptionText.h"

#include <string>
#include <string_view>
#include <variant>

/// Returns true if the bytes start like a zip archive.
bool isZipArchive(std::string_view bytes);

/// Extracts the first file of a zip archive whose name ends with ".xml". Returns a problem if the archive is
/// damaged or has no such file, or if the file is larger than `maxSize` bytes.
std::variant<std::string, DescriptionProblem> extractDescription(
    std::string_view archive, std::size_t maxSize);
