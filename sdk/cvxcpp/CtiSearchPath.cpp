#include "sdk/cvxcpp/CtiSearchPath.h"

#include "sdk/cvxcpp/CtiPathsDocument.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string_view>
#include <system_error>

namespace {

std::string readFile(const std::string &path)
{
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

void appendOnce(std::vector<std::string> &directories, const std::string &directory)
{
    if (std::find(directories.begin(), directories.end(), directory) == directories.end())
        directories.push_back(directory);
}

/// Returns the directory that a path of the configuration file refers to, or an empty string if there is no
/// such directory.
std::string directoryOf(
    const std::string &path, const std::string &installRoot, const std::string &configurationFile)
{
    if (path.front() == '/')
        return path; // The directory need not exist yet.
    for (const std::filesystem::path &base :
        {std::filesystem::path(installRoot), std::filesystem::path(configurationFile).parent_path()}) {
        std::error_code ignored;
        if (std::filesystem::is_directory(base / path, ignored))
            return base / path;
    }
    return {};
}

} // namespace

std::vector<std::string> configuredCtiDirectories(
    const std::string &installRoot, const std::string &configurationFile)
{
    std::vector<std::string> directories;
    for (const std::string &path : readCtiPaths(readFile(configurationFile))) {
        const std::string directory = directoryOf(path, installRoot, configurationFile);
        if (!directory.empty())
            appendOnce(directories, directory);
    }
    if (directories.empty())
        directories.push_back(installRoot + "/cti");
    return directories;
}

std::vector<std::string> searchPathDirectories(const char *searchPath)
{
    std::vector<std::string> directories;
    std::string_view rest = searchPath ? searchPath : "";
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(':'), rest.size());
        if (end > 0)
            directories.emplace_back(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return directories;
}
