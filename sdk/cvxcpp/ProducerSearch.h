#pragma once

#include <string>
#include <vector>

/// The producers in the directories: every regular file "*.cti" in any letter case, directory by directory,
/// each in the order of the file names. Links are resolved, and a file reached by several ways is there once.
std::vector<std::string> findProducers(const std::vector<std::string> &directories);
