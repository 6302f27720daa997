#include "tests/sdk/support/ProcessTable.h"

#include "tests/sdk/support/TemporaryDirectory.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <ios>
#include <iterator>

namespace {

namespace fs = std::filesystem;

std::vector<pid_t> allProcesses()
{
    std::vector<pid_t> processes;
    for (const auto &entry : fs::directory_iterator("/proc")) {
        const pid_t process = std::atoi(entry.path().filename().c_str());
        if (process > 0)
            processes.push_back(process);
    }
    return processes;
}

std::string procFile(pid_t process, const char *name)
{
    try {
        return readFile("/proc/" + std::to_string(process) + '/' + name);
    } catch (const std::ios_base::failure &) {
        return {}; // It ended while it was read.
    }
}

pid_t parentOf(pid_t process)
{
    const std::string stat
        = procFile(process, "stat"); // "pid (name) state parent …"; the name may hold anything.
    const std::size_t end = stat.rfind(')');
    return end == std::string::npos ? -1 : std::atoi(stat.c_str() + std::min(end + 4, stat.size()));
}

std::size_t entries(const char *directory)
{
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(directory), fs::directory_iterator()));
}

template <typename Predicate>
std::vector<pid_t> processesThat(const Predicate &predicate)
{
    std::vector<pid_t> found;
    const auto all = allProcesses();
    std::copy_if(all.begin(), all.end(), std::back_inserter(found), predicate);
    return found;
}

} // namespace

std::vector<pid_t> childrenOf(pid_t parent)
{
    return processesThat([parent](pid_t process) { return parentOf(process) == parent; });
}

std::vector<pid_t> processesWith(const std::string &argument)
{
    return processesThat(
        [&](pid_t process) { return procFile(process, "cmdline").find(argument) != std::string::npos; });
}

void killAll(const std::vector<pid_t> &processes)
{
    for (const pid_t process : processes)
        kill(process, SIGKILL);
}

std::size_t openDescriptors()
{
    return entries("/proc/self/fd") - 1; // The one that reads the directory does not count.
}

std::size_t threadCount()
{
    return entries("/proc/self/task");
}
