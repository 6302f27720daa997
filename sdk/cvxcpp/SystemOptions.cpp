#include "sdk/cvxcpp/SystemOptions.h"

#include <atomic>
#include <climits>
#include <filesystem>
#include <poll.h>
#include <unistd.h>

namespace {

/// Written in one go, so that lines of several processes do not mix. A standard error that nobody reads costs
/// the line, and not the program: it is waited for once, and then no more until it is read again.
void reportOnStandardError(const std::string &text)
{
    static std::atomic<bool> isRead{true};
    constexpr int LongestWait = 100; // Milliseconds.
    const std::string line = ("libCvxCPP: " + text).substr(0, PIPE_BUF - 1) + '\n'; // More could block.
    pollfd output{STDERR_FILENO, POLLOUT, 0};
    isRead = poll(&output, 1, isRead ? LongestWait : 0) > 0;
    if (!isRead)
        return;
    [[maybe_unused]] const auto written = write(STDERR_FILENO, line.data(), line.size());
}

} // namespace

SystemOptions SystemOptions::forLibraryDirectory(const std::string &libraryDirectory)
{
    const std::filesystem::path directory(libraryDirectory);
    SystemOptions options;
    options.hostProgram = (directory / "CvxProducerHost").string();
    options.installRoot = directory.parent_path().string();
    options.configurationFile = (directory / "CvxC.xml").string();
    options.report = reportOnStandardError;
    return options;
}
