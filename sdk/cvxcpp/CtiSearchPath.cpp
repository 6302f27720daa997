#include "sdk/cvxcpp/CtiSearchPath.h"

#include "sdk/cvxcpp/CtiPathsDocument.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <filesystem>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::size_t LargestFile = 256U << 10; // Bytes; what comes later is not read, as in the launcher.

/// The content of a regular file; empty for anything else, so that a pipe in its place does not hold us up.
std::string readFile(const std::string &path)
{
    std::string content;
    const int descriptor = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0)
        return content;
    struct stat file
    { };
    if (fstat(descriptor, &file) == 0 && S_ISREG(file.st_mode)) {
        content.resize(std::min(static_cast<std::size_t>(file.st_size), LargestFile));
        std::size_t done = 0;
        ssize_t count = 0;
        do {
            count = TEMP_FAILURE_RETRY(read(descriptor, content.data() + done, content.size() - done));
            done += static_cast<std::size_t>(std::max<ssize_t>(count, 0));
        } while (count > 0);
        content.resize(done);
    }
    close(descriptor);
    return content;
}

void appendOnce(std::vector<std::string> &directories, const std::string &directory)
{
    if (std::find(directories.begin(), directories.end(), directory) == directories.end())
        directories.push_back(directory);
}

void appendPath(std::vector<std::string> &directories, const std::string &path,
    const std::string &installRoot, const std::string &configurationFile)
{
    if (path.empty())
        return;
    if (path.front() == '/') {
        appendOnce(directories, path); // Need not exist now.
        return;
    }
    const std::string bases[]
        = {installRoot, std::filesystem::path(configurationFile).parent_path().string()};
    for (const std::string &base : bases) {
        const std::string directory = std::filesystem::path(base) / path;
        struct stat status
        { };
        if (stat(directory.c_str(), &status) == 0 && S_ISDIR(status.st_mode)) {
            appendOnce(directories, directory);
            return;
        }
    }
}

} // namespace

std::vector<std::string> configuredCtiDirectories(
    const std::string &installRoot, const std::string &configurationFile)
{
    std::vector<std::string> directories;
    const std::string content = readFile(configurationFile);
    if (!content.empty()) {
        for (const std::string &path : readCtiPaths(content))
            appendPath(directories, path, installRoot, configurationFile);
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
