#include "tests/camerahost/producer/QuirkScript.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <limits>
#include <mutex>
#include <sstream>
#include <sys/stat.h>
#include <tuple>
#include <unistd.h>

namespace {

struct Line
{
    std::string name;
    std::string value;
    std::uint64_t first = 1; // The value applies to these calls, both inclusive.
    std::uint64_t last = std::numeric_limits<std::uint64_t>::max();
    std::uint64_t calls = 0;
};

using Version = std::tuple<ino_t, off_t, time_t, long>;

std::mutex scriptMutex; // Guards the variables below.
std::vector<Line> lines;
Version known;

/// Parses "NAME@FIRST-LAST VALUE".
Line parse(const std::string &text)
{
    Line line;
    const std::string key = text.substr(0, text.find(' '));
    if (key.size() < text.size())
        line.value = text.substr(key.size() + 1);
    const auto range = key.find('@');
    line.name = key.substr(0, range);
    if (range == std::string::npos)
        return line;
    const auto dash = key.find('-', range);
    line.first = std::stoull(key.substr(range + 1));
    if (dash == std::string::npos)
        line.last = line.first;
    else if (dash + 1 < key.size())
        line.last = std::stoull(key.substr(dash + 1));
    return line;
}

/// Reads the script if the file was replaced. The mutex must be held.
void update()
{
    struct stat status
    { };
    const std::string path = QuirkScript::pathWith(".script");
    stat(path.c_str(), &status);
    const Version current(status.st_ino, status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec);
    if (current == known)
        return;
    known = current;
    lines.clear();
    std::ifstream file(path);
    for (std::string text; std::getline(file, text);)
        lines.push_back(parse(text));
}

} // namespace

namespace QuirkScript {

std::string actionFor(const std::string &function, const std::string &detail)
{
    const std::lock_guard lock(scriptMutex);
    update();
    std::string action;
    for (Line &line : lines) {
        if (line.name != function && line.name != function + ':' + detail)
            continue;
        ++line.calls;
        if (action.empty() && line.calls >= line.first && line.calls <= line.last)
            action = line.value;
    }
    return action;
}

std::vector<std::string> words(const std::string &setting)
{
    const std::lock_guard lock(scriptMutex);
    update();
    std::vector<std::string> result;
    for (const Line &line : lines) {
        std::istringstream stream(line.name == setting ? line.value : std::string());
        result.insert(result.end(), std::istream_iterator<std::string>(stream), {});
    }
    return result;
}

bool has(const std::string &setting)
{
    const std::lock_guard lock(scriptMutex);
    update();
    for (const Line &line : lines) {
        if (line.name == setting)
            return true;
    }
    return false;
}

std::string text(const std::string &setting, const std::string &fallback)
{
    const auto found = words(setting);
    return found.empty() ? fallback : found.front();
}

std::uint64_t number(const std::string &setting, std::uint64_t fallback)
{
    return std::stoull(text(setting, std::to_string(fallback)), nullptr, 0);
}

std::string pathWith(const std::string &suffix)
{
    static const std::string base = [] {
        Dl_info info{};
        dladdr(reinterpret_cast<const void *>(&pathWith), &info);
        const std::string file = info.dli_fname;
        return file.substr(0, file.rfind('.'));
    }();
    return base + suffix;
}

void log(const std::string &line)
{
    const std::string text = std::to_string(getpid()) + ' ' + line + '\n';
    const int file = open(pathWith(".log").c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644);
    [[maybe_unused]] const auto written = write(file, text.data(), text.size());
    close(file);
}

} // namespace QuirkScript
