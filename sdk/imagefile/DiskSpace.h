#pragma once

#include <cstdint>
#include <optional>
#include <string>

/// Returns the bytes that a recording may still write to the file system of the file: what is free, less a
/// reserve for everybody else of 1 % of the file system, at most 1 GiB. Returns no value if the file system
/// does not tell, or if the path is a pipe or a device.
std::optional<std::uint64_t> usableSpace(const std::string &path);

/// Returns the number of bytes for people, for example "12.3 GB".
std::string byteText(std::uint64_t bytes);
