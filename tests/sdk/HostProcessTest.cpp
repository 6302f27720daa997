#include "sdk/process/HostProcess.h"
#include "tests/protocol/WaitForLine.h"
#include "tests/sdk/support/TemporaryDirectory.h"
#include "tests/sdk/support/Waiting.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

class HostProcessTest : public testing::Test
{
protected:
    /// Starts a shell script as the host program. Returns why that failed, or an empty string.
    std::string startScript(const std::string &script, HostProcess &process)
    {
        const fs::path program = directory.path() / "host";
        writeFile(program, "#!/bin/sh\n" + script + '\n');
        fs::permissions(program, fs::perms::owner_all);
        auto result = process.start(program.string(), "a.cti");
        channel = std::move(result.channel);
        return result.failure;
    }

    std::string nextLine()
    {
        std::string line;
        EXPECT_EQ(waitForLine(channel, line), LineChannel::Status::Line);
        return line;
    }

    static std::optional<int> statusOf(HostProcess &process)
    {
        std::optional<int> status;
        EXPECT_TRUE(waitUntil([&] { return (status = process.tryReap()).has_value(); }));
        return status;
    }

    TemporaryDirectory directory;
    LineChannel channel;
};

TEST_F(HostProcessTest, hostReceivesItsSocketAndTheProducerPath)
{
    HostProcess process;
    ASSERT_EQ(startScript("read line <&3; echo \"$line $1\" >&3; exit 7", process), "");
    EXPECT_TRUE(process.isStarted());
    EXPECT_EQ(process.tryReap(), std::nullopt);
    channel.send("to\n");
    EXPECT_EQ(nextLine(), "to a.cti");
    const int status = *statusOf(process);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 7);
    EXPECT_FALSE(process.isStarted());

    const auto before = std::signal(SIGCHLD, SIG_IGN); // The kernel discards the exit status of children.
    ASSERT_EQ(startScript("exit 0", process), "");
    EXPECT_EQ(statusOf(process), HostProcess::unknownStatus);
    std::signal(SIGCHLD, before);
}

TEST_F(HostProcessTest, hostInheritsNoDescriptorsAndNoSignalHandling)
{
    const int ours = open("/dev/null", O_RDONLY); // Opened without close-on-exec.
    const auto before = std::signal(SIGUSR1, SIG_IGN);
    HostProcess process;
    ASSERT_EQ(startScript("ls -m /proc/self/fd >&3; kill -USR1 $$; exit 0", process), "");
    std::signal(SIGUSR1, before);
    close(ours);
    EXPECT_EQ(nextLine(), "0, 1, 2, 3, 4") << "descriptor 4 is the directory that ls reads";
    EXPECT_EQ(statusOf(process), SIGUSR1);
    EXPECT_NE(fcntl(channel.descriptor(), F_GETFD) & FD_CLOEXEC, 0)
        << "other programs do not inherit the socket";
}

TEST_F(HostProcessTest, killEndsTheHostAndItsChildren)
{
    {
        HostProcess process;
        ASSERT_EQ(startScript("sleep 1000 & echo >&3; sleep 1000", process), "");
        nextLine();
        process.kill();
        EXPECT_EQ(statusOf(process), SIGKILL);
        ASSERT_EQ(startScript("sleep 1000 & echo >&3; exit 0", process), "");
        nextLine();
        EXPECT_EQ(statusOf(process), 0);
        ASSERT_EQ(startScript("sleep 1000 & echo >&3; sleep 1000", process), "");
        nextLine(); // The destructor ends the shell and its child.
    }
    std::string line;
    EXPECT_EQ(waitForLine(channel, line), LineChannel::Status::Closed)
        << "no process keeps the host's end of the socket open";
    EXPECT_TRUE(waitUntil([] { return waitpid(-1, nullptr, WNOHANG) < 0; })) << "nothing is left to reap";
}

TEST_F(HostProcessTest, startReportsTheReasonOfAFailure)
{
    HostProcess process;
    EXPECT_EQ(process.start("/nowhere/host", "a.cti").failure,
        "cannot start /nowhere/host: No such file or directory");
    EXPECT_FALSE(process.isStarted());

    rlimit before{};
    getrlimit(RLIMIT_NOFILE, &before);
    const rlimit none{0, before.rlim_max};
    setrlimit(RLIMIT_NOFILE, &none);
    const auto result = process.start(CVX_PRODUCER_HOST, "a.cti");
    setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_EQ(result.failure, "cannot create a socket for its host: Too many open files");
    EXPECT_EQ(result.channel.descriptor(), -1);
}
