#pragma once

#include <string>
#include <vector>

/// Returns the producer directories that CvxC.xml names (see CtiPathsDocument.h), in order and without
/// duplicates. An absolute path is taken as it is. A relative path means a directory below the install root
/// or, if there is none, beside the file; it is left out if neither exists. If no directory remains, the
/// result is the directory "cti" of the install root.
std::vector<std::string> configuredCtiDirectories(
    const std::string &installRoot, const std::string &configurationFile);

/// Returns the directories of a search path such as GENICAM_GENTL64_PATH, which separates them by colons.
/// A null pointer is an empty search path.
std::vector<std::string> searchPathDirectories(const char *searchPath);
