#include "tests/sdk/support/ProcessTable.h"

#include "tests/sdk/support/TemporaryDirectory.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <iterator>

namespace {

namespace fs = std::filesystem;

template <typename Predicate>
std::vector<pid_t> processesThat(const Predicate &predicate)
{
    std::vector<pid_t> found;
    for (const auto &entry : fs::directory_iterator("/proc")) {
        const pid_t process = std::atoi(entry.path().filename().c_str());
        if (process > 0 && predicate(entry.path()))
            found.push_back(process);
    }
    return found;
}

std::size_t entries(const char *directory)
{
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(directory), fs::directory_iterator()));
}

} // namespace

std::vector<pid_t> childrenOf(pid_t parent)
{
    return processesThat([parent](const fs::path &directory) {
        const std::string status = readFile(directory / "status"); // Empty if the process has just ended.
        return status.find("\nPPid:\t" + std::to_string(parent) + '\n') != std::string::npos;
    });
}

std::vector<pid_t> processesWith(const std::string &argument)
{
    return processesThat([&](const fs::path &directory) {
        return readFile(directory / "cmdline").find(argument) != std::string::npos;
    });
}

void killAll(const std::vector<pid_t> &processes)
{
    for (const pid_t process : processes)
        kill(process, SIGKILL);
}

std::size_t openDescriptors()
{
    return entries("/proc/self/fd") - 1; // Excludes the descriptor that reads the directory.
}

std::size_t threadCount()
{
    return entries("/proc/self/task");
}
