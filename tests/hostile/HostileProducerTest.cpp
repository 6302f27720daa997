#include "tests/hostile/HostileProducers.h"
#include "tests/sdk/support/SystemTest.h"

#include <algorithm>
#include <cctype>
#include <ostream>

using namespace std::chrono_literals;
using Due = HostileProducer::Due;

void PrintTo(const HostileProducer &row, std::ostream *stream)
{
    *stream << row.name;
}

/// Runs the simulator together with one hostile producer.
class HostileProducerTest : public SystemTest, public testing::WithParamInterface<HostileProducer>
{
protected:
    HostileProducerTest()
    {
        options.searchTimeout = GetParam().text == "was killed" ? 500ms : 30s; // Then a producer is killed.
        if (GetParam().due == Due::AtEnd && GetParam().cameras >= 0) {
            // No request is running when the producer is closed, because the last list waits for its reply.
            options.refreshTimeout = 30s;
            options.pollInterval = 1h;
        }
        std::filesystem::copy_file(SIMULATOR, ctiPath("CorvixCameraSimulator.cti"));
        GetParam().place(directory.path() / "cti");
    }

    int countCameras(bool ofSimulator)
    {
        const auto ids = listIds();
        return static_cast<int>(std::count_if(ids.begin(), ids.end(), [&](const std::string &id) {
            return (id.rfind("CorvixCameraSimulator.cti/", 0) == 0) == ofSimulator;
        }));
    }

    bool simulatorIsListed() { return countCameras(true) == 2; }
    bool ownCamerasAreListed() { return countCameras(false) == GetParam().cameras; }

    void expectReports(std::size_t count) const
    {
        const auto lines = reports();
        EXPECT_EQ(lines.size(), count) << testing::PrintToString(lines);
        for (const std::string &line : lines) {
            EXPECT_NE(line.find(GetParam().file + ": "), std::string::npos) << line;
            EXPECT_NE(line.find(GetParam().text), std::string::npos) << line;
        }
    }

    /// Ends the process that the library cannot end because the process has left its host's process group.
    void endDaemon() const
    {
        const auto processes = [this] { return processesWith(directory.path().string()); };
        EXPECT_TRUE(waitUntil([&] { return processes().size() == 1; }));
        killAll(processes());
    }
};

TEST_P(HostileProducerTest, hostileProducerDoesNotAffectTheSimulator)
{
    const HostileProducer &row = GetParam();
    const std::size_t lines = row.due == Due::Never ? 0 : static_cast<std::size_t>(row.lines);
    start();
    EXPECT_TRUE(waitUntil([this] { return simulatorIsListed(); }));
    if (row.cameras >= 0) {
        EXPECT_TRUE(waitUntil([this] { return ownCamerasAreListed(); }));
    }
    if (row.due == Due::AtStart) {
        EXPECT_TRUE(waitUntil([&] { return reports().size() >= lines; }));
    }
    EXPECT_TRUE(simulatorIsListed());
    expectReports(row.due == Due::AtStart ? lines : 0);
    stop();
    expectReports(lines);
    if (row.leavesDaemon)
        endDaemon();
} // SystemTest checks that no process is left.

INSTANTIATE_TEST_SUITE_P(Rows, HostileProducerTest, testing::ValuesIn(hostileProducers()),
    [](const testing::TestParamInfo<HostileProducer> &test) {
        std::string name = test.param.name;
        std::replace_if(
            name.begin(), name.end(), [](unsigned char character) { return !std::isalnum(character); }, '_');
        return name;
    });
