#include "tests/hostile/HostileProducer.h"
#include "tests/hostile/OutputAside.h"
#include "tests/sdk/support/SystemTest.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <optional>
#include <sstream>

using namespace std::chrono_literals;

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::milliseconds;
using Due = HostileProducer::Due;

void PrintTo(const HostileProducer &row, std::ostream *stream)
{
    *stream << row.name;
}

namespace {

// Instrumentation slows hosts and library down, by up to some ten times; with it these tests find other
// things.
constexpr Milliseconds FirstListBound
    = IS_INSTRUMENTED ? 6000ms : 3500ms; // From the start to the others' cameras.
constexpr Milliseconds LaterListBound
    = IS_INSTRUMENTED ? 3000ms : 300ms; // More than without the hostile one.
constexpr auto GoneBound = 500ms; // For what was killed to be gone.
constexpr int LaterLists = 8;
constexpr std::size_t SimulatedCameras = 2;

std::vector<std::string> linesOf(const std::string &text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

} // namespace

/// The simulator with something hostile beside it, with the times of an installation.
class HostileProducerTest : public SystemTest, public testing::WithParamInterface<HostileProducer>
{
protected:
    HostileProducerTest()
    {
        const SystemOptions shipped = SystemOptions::forLibraryDirectory(directory.path() / "bin");
        options = shipped;
        options.hostProgram = CVX_PRODUCER_HOST;
        options.reuseTime = 0ms; // Every list is a search.
        if (GetParam().files == 1)
            options.firstRestart = 50ms; // Lists are asked for while it is started again.
        std::filesystem::copy_file(SIMULATOR, ctiPath("CorvixCameraSimulator.cti"));
    }

    std::size_t countCameras(const std::string &producer)
    {
        const auto ids = listIds();
        return static_cast<std::size_t>(std::count_if(
            ids.begin(), ids.end(), [&](const std::string &id) { return id.rfind(producer + '/', 0) == 0; }));
    }
    bool simulatorIsListed() { return countCameras("CorvixCameraSimulator.cti") == SimulatedCameras; }

    Milliseconds longestList()
    {
        Milliseconds longest{};
        for (int i = 0; i < LaterLists; ++i) {
            longest = std::max(longest, timeOf([this] { EXPECT_TRUE(simulatorIsListed()); }));
        }
        return longest;
    }

    void startAndList()
    {
        const auto started = Clock::now();
        start();
        EXPECT_TRUE(waitUntil([this] { return simulatorIsListed(); }));
        m_first = std::chrono::duration_cast<Milliseconds>(Clock::now() - started);
        m_later = longestList();
    }

    /// Its own cameras follow, and its line when it is due at the start.
    void waitForItsOwn(const OutputAside &output)
    {
        const HostileProducer &row = GetParam();
        if (row.cameras >= 0) {
            const std::size_t all = SimulatedCameras + static_cast<std::size_t>(row.cameras);
            EXPECT_TRUE(waitUntil([&] { return list().size() == all; })) << list().size();
        }
        const std::size_t lines = row.due == Due::AtStart ? static_cast<std::size_t>(row.files) : 0;
        EXPECT_TRUE(waitUntil([&] { return linesOf(output.errors()).size() >= lines; }));
    }

    void expectLines(const std::vector<std::string> &lines) const
    {
        const HostileProducer &row = GetParam();
        const std::size_t due = row.due == Due::Never ? 0 : static_cast<std::size_t>(row.files);
        EXPECT_EQ(lines.size(), due) << testing::PrintToString(lines);
        for (const std::string &line : lines) {
            EXPECT_NE(line.find(row.file + ": "), std::string::npos) << line;
            EXPECT_NE(line.find(row.words), std::string::npos) << line;
        }
    }

    /// The processes that are left, after those were ended that are no host's to end.
    std::size_t processesLeft() const
    {
        waitUntil([this] { return processesWith(directory.path().string()).empty(); }, GoneBound);
        const auto left = processesWith(directory.path().string());
        if (GetParam().leavesDaemon) {
            killAll(left);
            EXPECT_TRUE(waitUntil([this] { return processesWith(directory.path().string()).empty(); }));
        }
        return left.size();
    }

    Milliseconds m_first{}, m_later{}, m_end{};
};

TEST_P(HostileProducerTest, HarmsNobodyElse)
{
    std::vector<std::string> lines;
    Milliseconds undisturbed{};
    {
        const OutputAside output;
        start();
        EXPECT_TRUE(waitUntil([this] { return simulatorIsListed(); }));
        undisturbed = longestList();
        stop();

        GetParam().place(directory.path() / "cti");
        startAndList();
        waitForItsOwn(output);
        m_end = timeOf([this] { stop(); });
        lines = linesOf(output.errors());
    }
    const std::size_t left = processesLeft();
    expectLines(lines);
    EXPECT_LE(m_first, FirstListBound);
    EXPECT_LE(m_later, undisturbed + LaterListBound);
    EXPECT_LE(m_end, 2s);
    EXPECT_EQ(left, GetParam().leavesDaemon ? 1U : 0U);

    std::printf("HOSTILE\t%s\t%d\t%d\t%d\t%zu\t%s\n", GetParam().name.c_str(), int(m_first.count()),
        int((m_later - undisturbed).count()), int(m_end.count()), left,
        lines.empty() ? "" : lines.front().substr(lines.front().find("/cti/") + 5).c_str());
}

INSTANTIATE_TEST_SUITE_P(Rows, HostileProducerTest, testing::ValuesIn(hostileProducers()),
    [](const testing::TestParamInfo<HostileProducer> &test) {
        std::string name = test.param.name;
        std::replace_if(
            name.begin(), name.end(), [](unsigned char character) { return !std::isalnum(character); }, '_');
        return name;
    });
