#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

/// A producer file that findProducers() has found.
struct ProducerFile
{
    std::string path; ///< Absolute, without symbolic links.
    std::size_t directory; ///< Index of the directory in the search order.
};

/// Returns the producers in the directories: every regular file "*.cti", in any letter case. The result is
/// sorted by directory, in the order of `directories`, and then by file name. Symbolic links are resolved,
/// and a file that is found several times is returned once. Calls `report` with the path and the reason for
/// every "*.cti" entry that is not a regular file, and for every directory that exists but cannot be
/// searched.
std::vector<ProducerFile> findProducers(
    const std::vector<std::string> &directories, const std::function<void(const std::string &)> &report = {});
