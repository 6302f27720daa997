#include "sdk/cvxcpp/ProducerSearch.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <filesystem>
#include <memory>
#include <set>
#include <string_view>
#include <strings.h>
#include <sys/stat.h>
#include <utility>

namespace {

bool isCtiName(std::string_view name)
{
    constexpr std::string_view suffix = ".cti";
    return name.size() >= suffix.size()
        && strncasecmp(name.data() + name.size() - suffix.size(), suffix.data(), suffix.size()) == 0;
}

using Report = std::function<void(const std::string &)>;
using FileIds = std::set<std::pair<dev_t, ino_t>>;

void reportProblem(const Report &report, const std::string &path, const std::string &problem)
{
    if (report)
        report(path + ": " + problem);
}

/// Returns the sorted names of the "*.cti" files in a directory, or no names if the directory was already
/// searched, possibly under another path.
std::vector<std::string> ctiNames(const std::string &directory, FileIds &known, const Report &report)
{
    std::vector<std::string> names;
    const std::unique_ptr<DIR, int (*)(DIR *)> stream(opendir(directory.c_str()), closedir);
    if (!stream) {
        if (errno != ENOENT && errno != ENOTDIR)
            reportProblem(report, directory, std::string("cannot be searched: ") + strerrordesc_np(errno));
        return names;
    }
    struct stat file
    { };
    if (fstat(dirfd(stream.get()), &file) == 0 && !known.emplace(file.st_dev, file.st_ino).second)
        return names;
    while (const dirent *entry = readdir(stream.get())) {
        if (isCtiName(entry->d_name))
            names.emplace_back(entry->d_name);
    }
    std::sort(names.begin(), names.end());
    return names;
}

/// Returns the absolute path without symbolic links, or an empty string if the file does not exist.
std::string resolved(const std::string &path)
{
    const std::unique_ptr<char, void (*)(void *)> real(realpath(path.c_str(), nullptr), std::free);
    return real ? std::string(real.get()) : std::string();
}

/// Returns the reason why the file cannot be a producer, or an empty string if it is a regular file. Stores
/// the status of the file in `file`.
std::string findProblem(const std::string &path, struct stat &file)
{
    if (stat(path.c_str(), &file) != 0)
        return std::string("cannot be found: ") + strerrordesc_np(errno);
    if (S_ISDIR(file.st_mode))
        return "is a directory";
    return S_ISREG(file.st_mode) ? "" : "is not a regular file";
}

} // namespace

std::vector<std::string> findProducers(const std::vector<std::string> &directories, const Report &report)
{
    std::vector<std::string> producers;
    FileIds known;
    for (const std::string &directory : directories) {
        for (const std::string &name : ctiNames(directory, known, report)) {
            const std::string path = std::filesystem::path(directory) / name;
            struct stat file
            { };
            const std::string problem = findProblem(path, file);
            if (!problem.empty()) {
                reportProblem(report, path, problem);
                continue;
            }
            std::string realPath = resolved(path);
            if (!realPath.empty() && known.emplace(file.st_dev, file.st_ino).second)
                producers.push_back(std::move(realPath));
        }
    }
    return producers;
}
