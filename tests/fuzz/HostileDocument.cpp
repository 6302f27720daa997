#include "tests/fuzz/HostileDocument.h"

#include "sdk/cvxcpp/CtiSearchPath.h"
#include "tests/fuzz/LauncherDirectories.h"

#include <ctime>
#include <fstream>

namespace fs = std::filesystem;

namespace {

Directories libraryDirectories(const std::string &installRoot)
{
    return configuredCtiDirectories(installRoot, installRoot + "/bin/CvxC.xml");
}

/// What this process has had in memory at the most since clearPeak(), in KiB.
long peakMemory()
{
    std::ifstream status("/proc/self/status");
    std::string word;
    long peak = 0;
    while (status >> word) {
        if (word == "VmHWM:")
            status >> peak;
    }
    return peak;
}

void clearPeak()
{
    std::ofstream("/proc/self/clear_refs") << "5";
}

double processorSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

} // namespace

std::ostream &operator<<(std::ostream &stream, const Reader &reader)
{
    return stream << reader.name;
}

const std::vector<Reader> &readers()
{
    static const std::vector<Reader> both{
        {"Launcher", launcherDirectories}, {"SdkLibrary", libraryDirectories}};
    return both;
}

std::string withPath(const std::string &declarations, const std::string &path)
{
    return "<!DOCTYPE c [" + declarations + "]><c><CtiPaths><Path>/a</Path><Path>" + path
        + "</Path><Path>/b</Path></CtiPaths></c>";
}

HostileDocument::HostileDocument()
{
    fs::create_directories(root.path() / "bin");
}

void HostileDocument::write(const std::string &content) const
{
    std::ofstream(file(), std::ios::binary) << content;
    ASSERT_EQ(fs::file_size(file()), content.size());
}

Directories HostileDocument::read(const Reader &reader) const
{
    clearPeak();
    const long memory = peakMemory();
    const double start = processorSeconds();
    Directories found = reader.read(root.path().string());
    EXPECT_LT(processorSeconds() - start, 5.0);
    EXPECT_LT(peakMemory() - memory, 512L << 10);
    return found;
}
