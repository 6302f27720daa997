#include "tools/kit/measure/thermal/TemperatureLog.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/resource.h>
#include <unistd.h>

namespace {

const char header[] = "time,Sensor [degC],Mainboard [degC],dark level,event\n";

class TemperatureLogTest : public testing::Test
{
protected:
    void SetUp() override
    {
        std::string pattern = testing::TempDir() + "temperature-log-XXXXXX";
        m_folder = mkdtemp(pattern.data());
    }
    void TearDown() override { std::filesystem::remove_all(m_folder); }

    std::string path(const std::string &name = "log.csv") const { return m_folder + '/' + name; }

    static std::string content(const std::string &path)
    {
        std::stringstream text;
        text << std::ifstream(path).rdbuf();
        return text.str();
    }

    static std::string open(TemperatureLog &log, const std::string &path)
    {
        return log.open(path, {"Sensor", "Mainboard"});
    }

    std::string m_folder;
};

TEST_F(TemperatureLogTest, hasEachLineInTheFileAtOnce)
{
    TemperatureLog log;
    ASSERT_EQ(open(log, path()), "");
    log.append("T1", {45.25, 50}, {}, "");
    log.append("T2", {{}, {}}, {}, "camera lost, gap");
    log.append("T3", {45.3, 50.1}, 4.12342, "");
    EXPECT_EQ(content(path()), // The log is still open, as after a crash.
        std::string(header) + "T1,45.250,50.000,,\nT2,,,,\"camera lost, gap\"\nT3,45.300,50.100,4.1234,\n");
    EXPECT_EQ(log.problem(), "");
}

TEST_F(TemperatureLogTest, continuesAfterARestart)
{
    {
        TemperatureLog log;
        ASSERT_EQ(open(log, path()), "");
        log.append("T1", {1, 2}, {}, "");
    }
    std::ofstream(path(), std::ios::app) << "T2,1.0"; // The power failed.
    TemperatureLog log;
    ASSERT_EQ(open(log, path()), "");
    log.append("T3", {3, 4}, {}, "");
    EXPECT_EQ(log.path(), path());
    EXPECT_EQ(content(path()), std::string(header) + "T1,1.000,2.000,,\nT3,3.000,4.000,,\n");
}

TEST_F(TemperatureLogTest, leavesOtherFilesAlone)
{
    std::ofstream(path()) << "letter";
    std::ofstream(path("log-2.csv")) << "time,Other [degC],dark level,event\n";
    TemperatureLog log;
    ASSERT_EQ(open(log, path()), "");
    EXPECT_EQ(log.path(), path("log-3.csv"));
    EXPECT_EQ(content(path()), "letter");
    EXPECT_EQ(content(log.path()), header);
    EXPECT_NE(open(log, path("missing/log.csv")), "");
    EXPECT_FALSE(log.isOpen());
}

TEST_F(TemperatureLogTest, createsADeletedFileAgain)
{
    TemperatureLog log;
    ASSERT_EQ(open(log, path()), "");
    std::filesystem::remove(path());
    log.append("T1", {1, 2}, {}, "");
    EXPECT_EQ(content(path()), std::string(header) + "T1,1.000,2.000,,\n");
}

TEST_F(TemperatureLogTest, goesOnWhenThereIsSpaceAgain)
{
    TemperatureLog log;
    ASSERT_EQ(open(log, path()), "");
    log.append("T1", {1, 2}, {}, "");
    const std::string before = content(path());

    // A limit of the file size in the middle of the next line acts like a full disk.
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit low{before.size() + 5, limit.rlim_max};
    setrlimit(RLIMIT_FSIZE, &low);
    log.append("T2", {1, 2}, {}, "");
    EXPECT_NE(log.problem(), "");
    EXPECT_EQ(log.lostLines(), 1U);
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(content(path()), before);

    log.append("T3", {3, 4}, {}, "");
    EXPECT_EQ(log.problem(), "");
    EXPECT_EQ(content(path()), before + "T3,3.000,4.000,,\n");
}

} // namespace
