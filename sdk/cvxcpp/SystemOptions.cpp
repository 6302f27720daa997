#include "sdk/cvxcpp/SystemOptions.h"

#include <filesystem>
#include <unistd.h>

namespace {

/// Written in one go, so that lines of several processes do not mix.
void reportOnStandardError(const std::string &text)
{
    const std::string line = "libCvxCPP: " + text + '\n';
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
