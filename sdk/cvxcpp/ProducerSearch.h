#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

/// A producer that was found.
struct ProducerFile
{
    std::string path;
    std::size_t directory; ///< The place of the directory it was found in, in the search order.
};

/// The producers in the directories: every regular file "*.cti" in any letter case, directory by directory,
/// each in the order of the file names. Links are resolved, and a file reached by several ways is there once.
/// Whatever else has such a name is passed over, and told to `report`: its path and the reason. So is a
/// directory that cannot be searched, unless it is not there.
std::vector<ProducerFile> findProducers(
    const std::vector<std::string> &directories, const std::function<void(const std::string &)> &report = {});
