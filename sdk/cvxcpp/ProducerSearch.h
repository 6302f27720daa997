#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

/// A producer that was found.
struct ProducerFile
{
    std::string path; ///< Absolute, without symbolic links.
    std::size_t directory; ///< Index of the directory in the search order.
};

/// Returns the producers in the directories: every regular file "*.cti", in any letter case. The order is
/// that of the directories, then of the file names. Links are resolved, and a file that is found several
/// times is returned once. Calls `report` with the path and the reason for every other file of such a name,
/// and for every directory that exists but cannot be searched.
std::vector<ProducerFile> findProducers(
    const std::vector<std::string> &directories, const std::function<void(const std::string &)> &report = {});
