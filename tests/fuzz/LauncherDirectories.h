#pragma once

#include <string>
#include <vector>

/// The directories that the launcher searches in an installation, as file names.
std::vector<std::string> launcherDirectories(const std::string &installRoot);
