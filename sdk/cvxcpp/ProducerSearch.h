#pragma once

#include <functional>
#include <string>
#include <vector>

/// Returns the paths of the producers in the directories: every regular file "*.cti", in any letter case. The
/// result is sorted by directory, in the order of `directories`, and then by file name. The paths are
/// absolute and contain no symbolic links, and a file that is found several times is returned once. Calls
/// `report` with the path and the reason for every "*.cti" entry that is not a regular file, and for every
/// directory that exists but cannot be searched.
std::vector<std::string> findProducers(
    const std::vector<std::string> &directories, const std::function<void(const std::string &)> &report = {});
