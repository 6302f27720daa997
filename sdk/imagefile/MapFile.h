#pragma once

#include "sdk/imagefile/CameraRecord.h"
#include "sdk/imagefile/MapOrigin.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// What the files of defect maps and flat fields have in common: reading of a file that may be damaged, and
/// the members of their JSON.

/// A file that was read.
struct FileText
{
    std::string text;
    std::string problem; ///< Why the file cannot be read, for people; empty if it was.
};

/// Reads a regular file of at most `maxSize` bytes.
FileText readMapFile(const std::string &path, std::uint64_t maxSize);

/// Returns why the path is no regular file of at most `maxSize` bytes, for people; empty if it is one.
std::string mapFileProblem(const std::string &path, std::uint64_t maxSize);

/// Returns "\"path\" is not usable as ...: " for sentences about what is wrong with the contents.
std::string damagedFile(const std::string &path, const std::string &what);

/// Returns the first members of the JSON: "format", "version" and "created", and those of cameraJson().
nlohmann::ordered_json mapJson(const char *format, const CameraRecord &camera);

/// Returns the object of a JSON text if its format is `format` and its version is known; otherwise nothing.
std::optional<nlohmann::ordered_json> parseMapJson(std::string_view text, const char *format);

/// Returns a member that is an integer from 0 to 2^32 - 1, or nothing.
std::optional<std::uint32_t> unsignedMember(const nlohmann::ordered_json &object, const char *name);

/// Returns a member that is a finite number, or nothing.
std::optional<double> numberMember(const nlohmann::ordered_json &object, const char *name);

MapOrigin originOf(const nlohmann::ordered_json &object);
