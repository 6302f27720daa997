#include "tests/sdk/support/ClientProcess.h"
#include "tests/sdk/support/ProcessTable.h"
#include "tests/sdk/support/TemporaryDirectory.h"
#include "tests/sdk/support/Waiting.h"

#include <csignal>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace fs = std::filesystem;

static const std::string oneCamera = "interface net|Net|GEV\ndevice net|D1|V|M|S|N|GEV\n";

/// Runs a program that uses the library with its default options, in an installation that only one test uses.
/// The simulator in that installation reports two cameras.
class LibraryTest : public testing::Test
{
protected:
    LibraryTest()
    {
        for (const char *folder : {"bin", "cti"})
            fs::create_directory(root.path() / folder);
        for (const char *file : {CVX_LIBRARY, CVX_PRODUCER_HOST, TEST_CLIENT})
            fs::copy_file(file, root.path() / "bin" / fs::path(file).filename());
        fs::copy_file(SIMULATOR, root.path() / "cti/CorvixCameraSimulator.cti");
    }
    ~LibraryTest() override
    {
        EXPECT_TRUE(waitUntil([this] { return hosts().empty(); })) << "a host is left";
        killAll(hosts());
    }

    void addProducer(const std::string &name, const std::string &script)
    {
        writeFile(root.path() / "cti" / (name + ".script"), script);
        fs::copy_file(TEST_PRODUCER, root.path() / "cti" / (name + ".cti"));
    }
    ClientProcess run(const std::vector<std::string> &steps) { return ClientProcess(client(), steps); }
    std::string client() const { return (root.path() / "bin" / fs::path(TEST_CLIENT).filename()).string(); }
    std::vector<pid_t> hosts() const { return processesWith((root.path() / "cti").string()); }

    TemporaryDirectory root;
};

TEST_F(LibraryTest, libraryExportsOneSymbol)
{
    ClientProcess nm(NM, {"-D", "-C", "--defined-only", CVX_LIBRARY});
    EXPECT_EQ(nm.exitStatus(), 0);
    EXPECT_EQ(nm.count("\n"), 1U) << nm.output();
    EXPECT_EQ(nm.count(" T CvxCPP::CvxSystem::GetInstance()\n"), 1U) << nm.output();
}

TEST_F(LibraryTest, libraryUsesTheInstallationThatContainsIt)
{
    writeFile(root.path() / "cti/text.cti", "no library");
    auto process = run({"start", "list", "stop", "stop", "start", "list", "stop"});
    EXPECT_EQ(process.exitStatus(), 0);
    EXPECT_EQ(process.count("start 0"), 2U);
    EXPECT_EQ(process.count("list 0 2"), 2U) << process.output();
    EXPECT_EQ(process.count("stop 0"), 3U);
    EXPECT_EQ(process.count("camera CorvixCameraSimulator.cti/"), 4U);
    EXPECT_EQ(process.count("libCvxCPP: " + (root.path() / "cti/text.cti").string() + ": dlopen failed"), 2U);
}

TEST_F(LibraryTest, hostsEndWhenTheProgramExits)
{
    addProducer("hanging", "fault GCInitLib hang\n");
    auto process = run({"start", "wait"});
    ASSERT_TRUE(waitUntil([&] { return hosts().size() == 2; }));
    process.closeInput();
    EXPECT_EQ(process.exitStatus(), 0);
    EXPECT_EQ(hosts().size(), 0U);
}

TEST_F(LibraryTest, exitOfAForkedChildStopsNoHost)
{
    auto process = run({"start", "list", "fork", "wait"});
    ASSERT_TRUE(process.waitFor("fork 0")) << process.output();
    EXPECT_EQ(hosts().size(), 1U);
    process.closeInput();
    EXPECT_EQ(process.exitStatus(), 0);
}

TEST_F(LibraryTest, hostsEndWhenTheProgramIsKilled)
{
    addProducer("hanging", "fault IFUpdateDeviceList hang\ninterface a|A|GEV\n");
    addProducer("loading", "fault load hang\n");
    auto process = run({"start", "wait"});
    const auto hasLogged = [this](const char *producer, const char *call) {
        return readFile(root.path() / "cti" / producer).find(call) != std::string::npos;
    };
    ASSERT_TRUE(waitUntil([&] {
        return hosts().size() == 3 && hasLogged("hanging.log", "IFUpdateDeviceList")
            && hasLogged("loading.log", "load");
    }));
    process.kill(SIGKILL);
    EXPECT_TRUE(waitUntil([&] { return hosts().empty(); }));
}

TEST_F(LibraryTest, camerasAreReturnedIfNobodyReadsStandardError)
{
    for (int i = 0; i < 40; ++i) // These file names sort before the simulator's.
        writeFile(root.path() / "cti" / (std::to_string(i) + "text.cti"), "no library");
    for (const char *error : {"closedStandardError", "fullStandardError"}) {
        auto process = run({error, "start", "list", "stop"});
        EXPECT_EQ(process.exitStatus(), 0) << error;
        EXPECT_EQ(process.count("list 0 2"), 1U) << error << process.output();
        EXPECT_EQ(process.count("stop 0"), 1U) << error;
    }
}

TEST_F(LibraryTest, producerMayUseTheTerminalOfTheProgram)
{
    addProducer("asking", "fault load ask\n" + oneCamera);
    addProducer("printing", "fault load print\ninterface net|Net|GEV\ndevice net|D2|V|M|S2|N|GEV\n");
    ClientProcess process(
        "/usr/bin/script", // Runs the program on a terminal that stops background processes when they use it.
        {"--quiet", "--return", "--command", "stty tostop; '" + client() + "' start search list stop",
            "/dev/null"});
    EXPECT_EQ(process.exitStatus(), 0);
    EXPECT_EQ(process.count("list 0 4"), 1U) << process.output().substr(0, 1000);
    EXPECT_GT(process.count("xxxx"), 0U) << "the output of the producer appears";
}

TEST_F(LibraryTest, standardDescriptorsMayBeClosed)
{
    addProducer("slow", "fault load slow 500\n" + oneCamera);
    // This file is reported while other descriptors are open.
    writeFile(root.path() / "cti/text.cti", "no library");
    for (const std::string closed : {"<&- 2>&-", "2>&-", "<&-"}) {
        ClientProcess process("/bin/sh", {"-c", "exec '" + client() + "' start list stop " + closed});
        EXPECT_EQ(process.exitStatus(), 0) << closed;
        EXPECT_EQ(process.count("list 0 3"), 1U) << closed << process.output();
    }
    ClientProcess process("/bin/sh", {"-c", "exec '" + client() + "' start list wait 2>&-"});
    ASSERT_TRUE(process.waitFor("list 0 3"));
    for (const pid_t host : hosts())
        EXPECT_EQ(fs::read_symlink("/proc/" + std::to_string(host) + "/fd/2"), "/dev/null");
    process.closeInput();
    EXPECT_EQ(process.exitStatus(), 0);
}
