#pragma once

#include <string>

/// Returns true if the path is a file that this process may execute.
bool isExecutableFile(const std::string &path);
