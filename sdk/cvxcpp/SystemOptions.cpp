#include "sdk/cvxcpp/SystemOptions.h"

#include <atomic>
#include <climits>
#include <filesystem>
#include <poll.h>
#include <unistd.h>

namespace {

/// Writes the line with one call, so that lines of several processes do not mix. If standard error is
/// blocked, waits once for at most 100 ms. If it stays blocked, drops lines without waiting until it can be
/// written to again.
void reportOnStandardError(const std::string &message)
{
    static std::atomic<bool> isRead{true};
    constexpr int maxWait = 100; // Milliseconds.
    // A longer line could block the write.
    const std::string line = ("libCvxCPP: " + message).substr(0, PIPE_BUF - 1) + '\n';
    pollfd output{STDERR_FILENO, POLLOUT, 0};
    isRead = poll(&output, 1, isRead ? maxWait : 0) > 0;
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
    options.device.hostProgram = (directory / "CvxCameraHost").string();
    options.installRoot = directory.parent_path().string();
    options.configurationFile = (directory / "CvxC.xml").string();
    options.report = reportOnStandardError;
    return options;
}
