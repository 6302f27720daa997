#pragma once

#include <string>
#include <vector>

/// Returns the producer directories that CvxC.xml contains (see CtiPathsDocument.h), in order and without
/// duplicates. An absolute path is used unchanged. A relative path refers to a directory below the install
/// root or, if this directory does not exist, to a directory next to CvxC.xml. A relative path is left out
/// if neither directory exists. If no directory remains, the result is the directory "cti" of the install
/// root.
std::vector<std::string> configuredCtiDirectories(
    const std::string &installRoot, const std::string &configurationFile);

/// Returns the directories of a search path such as GENICAM_GENTL64_PATH, in which colons separate the
/// directories. A null pointer is an empty search path.
std::vector<std::string> searchPathDirectories(const char *searchPath);
