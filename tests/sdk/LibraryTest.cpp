#include "tests/sdk/support/ClientProcess.h"
#include "tests/sdk/support/ProcessTable.h"
#include "tests/sdk/support/TemporaryDirectory.h"
#include "tests/sdk/support/Waiting.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace std::chrono_literals;

namespace fs = std::filesystem;

using Steps = std::vector<std::string>;

const std::string SomeCamera = "interface net|Net|GEV\ndevice net|D1|V|M|S|N|GEV\n";

/// The library as it is installed, with its own times, and a program beside it.
class LibraryTest : public testing::Test
{
protected:
    LibraryTest()
    {
        for (const char *folder : {"bin", "cti"})
            fs::create_directory(root.path() / folder);
        for (const char *file : {CVX_LIBRARY, CVX_PRODUCER_HOST, TEST_CLIENT})
            fs::copy_file(file, root.path() / "bin" / fs::path(file).filename());
    }
    ~LibraryTest() override
    {
        EXPECT_TRUE(waitUntil([this] { return hosts().empty(); }, 5s)) << "a host is left";
        killAll(hosts());
    }

    void addSimulator() { fs::copy_file(SIMULATOR, root.path() / "cti/CorvixCameraSimulator.cti"); }
    void addProducer(const std::string &name, const std::string &script)
    {
        writeFile(root.path() / "cti" / (name + ".script"), script);
        fs::copy_file(TEST_PRODUCER, root.path() / "cti" / (name + ".cti"));
    }
    void setScene(const std::vector<std::string> &ids)
    {
        std::string devices;
        for (const std::string &id : ids)
            devices += (devices.empty() ? "{\"id\":\"" : ",{\"id\":\"") + id + "\",\"vendor\":\"Orvelle\"}";
        writeFile(root.path() / "cti/CorvixCameraSimulator.json",
            R"({"interfaces":[{"id":"net","name":"Net","tlType":"GEV","devices":[)" + devices + "]}]}");
    }

    ClientProcess run(const Steps &steps) { return ClientProcess(client(), steps); }
    std::string client() const { return (root.path() / "bin" / fs::path(TEST_CLIENT).filename()).string(); }
    std::vector<pid_t> hosts() const { return processesWith((root.path() / "cti").string()); }

    TemporaryDirectory root;
};

TEST_F(LibraryTest, ExportsOneSymbol)
{
    const std::unique_ptr<FILE, int (*)(FILE *)> pipe(
        popen((std::string(NM) + " -D -C --defined-only " + CVX_LIBRARY).c_str(), "r"), pclose);
    ASSERT_TRUE(pipe);
    std::vector<std::string> symbols;
    std::array<char, 4096> line{};
    while (fgets(line.data(), line.size(), pipe.get()))
        symbols.emplace_back(line.data());
    ASSERT_EQ(symbols.size(), 1U) << testing::PrintToString(symbols);
    EXPECT_NE(symbols.front().find(" T CvxCPP::CvxSystem::GetInstance()"), std::string::npos);
}

TEST_F(LibraryTest, FindsHostAndProducersBesideItself)
{
    addSimulator();
    auto process = run({"start", "list", "stop", "stop", "start", "list", "stop"});
    EXPECT_EQ(process.exitStatus(), 0);
    EXPECT_EQ(process.count("start 0"), 2U);
    EXPECT_EQ(process.count("list 0 2"), 2U) << process.output();
    EXPECT_EQ(process.count("stop 0"), 3U);
    EXPECT_EQ(process.count("camera CorvixCameraSimulator.cti/"), 4U);
}

TEST_F(LibraryTest, DoesNotStartWithoutItsHost)
{
    fs::remove(root.path() / "bin" / fs::path(CVX_PRODUCER_HOST).filename());
    auto process = run({"start", "stop"});
    EXPECT_EQ(process.exitStatus(), 0);
    EXPECT_EQ(process.count("start -10"), 1U) << process.output();
    EXPECT_EQ(process.count("stop 0"), 1U);
}

TEST_F(LibraryTest, EndsItsHostsWhenTheProgramForgetsTo)
{
    addSimulator();
    addProducer("hanging", "fault GCInitLib hang\n");
    auto process = run({"start", "wait"});
    ASSERT_TRUE(waitUntil([&] { return hosts().size() == 2; }));
    process.closeInput();
    EXPECT_EQ(process.exitStatus(), 0);
    EXPECT_EQ(hosts().size(), 0U);
}

TEST_F(LibraryTest, TheEndOfAForkedChildIsNoEndOfTheSystem)
{
    addSimulator();
    auto process = run({"start", "list", "fork", "wait"});
    ASSERT_TRUE(waitUntil([&] { return process.count("fork ") == 1; }));
    EXPECT_EQ(process.count("fork 0"), 1U) << process.output();
    EXPECT_EQ(hosts().size(), 1U);
    process.closeInput();
    EXPECT_EQ(process.exitStatus(), 0);
}

TEST_F(LibraryTest, NoHostSurvivesAProgramThatLeavesAtOnce)
{
    addSimulator();
    auto process = run({"start", "list", "leave"});
    EXPECT_EQ(process.exitStatus(), 0);
}

TEST_F(LibraryTest, NoHostSurvivesAProgramThatIsKilled)
{
    addSimulator();
    addProducer("hanging", "fault IFUpdateDeviceList hang\n" + std::string("interface a|A|GEV\n"));
    addProducer("loading", "fault load hang\n");
    auto process = run({"start", "wait"});
    ASSERT_TRUE(waitUntil([&] {
        return hosts().size() == 3
            && readFile(root.path() / "cti/hanging.log").find("IFUpdateDeviceList") != std::string::npos
            && readFile(root.path() / "cti/loading.log").find("load") != std::string::npos;
    }));
    process.kill(SIGKILL);
    EXPECT_TRUE(waitUntil([&] { return hosts().empty(); }, 5s));
}

TEST_F(LibraryTest, ReportsOnStandardError)
{
    writeFile(root.path() / "cti/text.cti", "no library");
    auto process = run({"start", "list", "stop"});
    EXPECT_EQ(process.exitStatus(), 0);
    EXPECT_EQ(process.count("libCvxCPP: " + (root.path() / "cti/text.cti").string() + ": dlopen failed"), 1U)
        << process.output();
}

TEST_F(LibraryTest, AStandardErrorThatNobodyReadsHarmsNothing)
{
    addSimulator();
    writeFile(root.path() / "cti/text.cti", "no library");
    for (const char *error : {"unread", "stuffed"}) {
        auto process = run({error, "start", "list", "stop"});
        EXPECT_EQ(process.exitStatus(), 0) << error;
        EXPECT_EQ(process.count("list 0 2"), 1U) << error << process.output();
        EXPECT_EQ(process.count("stop 0"), 1U) << error;
    }
}

TEST_F(LibraryTest, AStandardErrorThatNobodyReadsDelaysNoList)
{
    addSimulator();
    for (int i = 0; i < 40; ++i) // Before the simulator in the order of names.
        writeFile(root.path() / "cti" / (std::to_string(i) + "text.cti"), "no library");
    auto process = run({"stuffed", "start", "list", "stop"});
    EXPECT_EQ(process.exitStatus(), 0);
    EXPECT_EQ(process.count("list 0 2"), 1U) << process.output();
}

TEST_F(LibraryTest, ADriverMayUseTheTerminalOfTheProgram)
{
    addProducer("asking", "fault load ask\n" + SomeCamera);
    addProducer("printing", "fault load print\n" + SomeCamera);
    ClientProcess process(
        "/usr/bin/script", // Which gives it a terminal; there, what is in the background stops.
        {"--quiet", "--return", "--command", "stty tostop; '" + client() + "' start list stop", "/dev/null"});
    EXPECT_EQ(process.exitStatus(), 0);
    EXPECT_EQ(process.count("list 0 2"), 1U) << process.output().substr(0, 1000);
    EXPECT_GT(process.count("xxxx"), 0U) << "what it prints is read";
}

TEST_F(LibraryTest, StandardDescriptorsThatAreClosedAreTakenByNobody)
{
    addProducer("good", "fault load slow 500\n" + SomeCamera);
    writeFile(root.path() / "cti/text.cti", "no library"); // Its line must not go where standard error was.
    for (const char *closed : {"<&- 2>&-", "2>&-", "<&-"}) {
        ClientProcess process("/bin/sh", {"-c", "exec '" + client() + "' start list stop " + closed});
        EXPECT_EQ(process.exitStatus(), 0) << closed;
        EXPECT_EQ(process.count("list 0 1"), 1U) << closed << process.output();
    }
}

TEST_F(LibraryTest, AHostHasStandardDescriptorsWhereItsProgramHasNone)
{
    addSimulator();
    ClientProcess process("/bin/sh", {"-c", "exec '" + client() + "' start list wait 2>&-"});
    ASSERT_TRUE(process.waitFor("list 0 2"));
    ASSERT_EQ(hosts().size(), 1U);
    EXPECT_EQ(fs::read_symlink("/proc/" + std::to_string(hosts().front()) + "/fd/2"), "/dev/null");
    process.closeInput();
    EXPECT_EQ(process.exitStatus(), 0);
}

TEST_F(LibraryTest, AnnouncesWithinThreeSeconds)
{
    addSimulator();
    setScene({"one"});
    auto process = run({"start", "watch", "list", "wait"});
    ASSERT_TRUE(process.waitFor("camera CorvixCameraSimulator.cti/net/one"));
    setScene({"one", "two"});
    EXPECT_LT(timeOf([&] { EXPECT_TRUE(process.waitFor("in CorvixCameraSimulator.cti/net/two")); }), 3s);
    setScene({"two"});
    EXPECT_LT(timeOf([&] { EXPECT_TRUE(process.waitFor("out CorvixCameraSimulator.cti/net/one")); }), 3s);
    process.closeInput();
    EXPECT_EQ(process.exitStatus(), 0);
    EXPECT_EQ(process.count("in ") + process.count("out "), 2U) << process.output();
}

TEST_F(LibraryTest, WaitsThreeSecondsOnceAndKillsAfterTen)
{
    addSimulator();
    addProducer("hanging", "fault GCInitLib hang\n");
    const auto start = std::chrono::steady_clock::now();
    auto process = run({"start", "list", "list", "wait"});
    ASSERT_TRUE(waitUntil([&] { return process.count("list 0 2") == 2; }));
    const auto times = process.numbersAfter("list 0 2 ");
    ASSERT_EQ(times.size(), 2U);
    EXPECT_GT(times[0], 2900.0);
    EXPECT_LT(times[0], 3500.0);
    EXPECT_LT(times[1], 300.0);
    ASSERT_TRUE(process.waitFor("cti/hanging.cti: did not answer within 10.0 s and was killed"));
    EXPECT_GT(std::chrono::steady_clock::now() - start, 9900ms);
    EXPECT_LT(std::chrono::steady_clock::now() - start, 13s);
    process.closeInput();
    EXPECT_EQ(process.exitStatus(), 0);
}

TEST_F(LibraryTest, StartsAgainAfterOneTwoAndFourSeconds)
{
    const auto failWith = [this](int code) {
        writeFile(root.path() / "cti/bad.script", "fault load exit " + std::to_string(code) + "\n");
    };
    addProducer("bad", "");
    failWith(1);
    const auto start = std::chrono::steady_clock::now();
    auto process = run({"start", "wait"});
    // With a new code each time, since a failure that repeats is reported once.
    for (const auto &[code, time] :
        {std::pair<int, std::chrono::seconds>{1, 0s}, {2, 1s}, {3, 3s}, {4, 7s}}) {
        ASSERT_TRUE(waitUntil(
            [&, line = "exited with code " + std::to_string(code)] { return process.count(line) == 1; }));
        EXPECT_GT(std::chrono::steady_clock::now() - start, time - 100ms);
        EXPECT_LT(std::chrono::steady_clock::now() - start, time + 2s);
        failWith(code + 1);
    }
    process.closeInput();
    EXPECT_EQ(process.exitStatus(), 0);
}
