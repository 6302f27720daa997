#pragma once

#include <string>
#include <vector>

/// The directories that CvxC.xml names in its CtiPaths/Path elements, in order, each once. A relative one
/// counts from the install root, or else from the folder of the file, and must exist. Names are compared
/// without regard to case or namespace prefix. What stands before a fault in the file counts, and of a large
/// file the first 256 KiB. Without any, it is the directory "cti" of the install root.
std::vector<std::string> configuredCtiDirectories(
    const std::string &installRoot, const std::string &configurationFile);

/// The directories of a search path such as GENICAM_GENTL64_PATH, which are separated by colons; null for
/// none.
std::vector<std::string> searchPathDirectories(const char *searchPath);
