#include "sdk/cvxcpp/HostProcess.h"
#include "tests/sdk/support/Waiting.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

namespace {

/// The host's next line.
std::string nextLine(HostProcess &host)
{
    std::string line;
    EXPECT_TRUE(waitUntil([&] { return host.readLine(line) == HostProcess::Reading::Line; }));
    return line;
}

/// It has ended with this; nothing when it does not end.
std::optional<int> endOf(HostProcess &host)
{
    std::optional<int> status;
    waitUntil([&] { return (status = host.tryReap()).has_value(); });
    return status;
}

} // namespace

TEST(HostProcessTest, KillsWhatStillRuns)
{
    {
        HostProcess host;
        ASSERT_EQ(host.start("/bin/sleep", "100"), std::nullopt);
    }
    EXPECT_TRUE(waitUntil([] { return waitpid(-1, nullptr, WNOHANG) < 0; })) << "it is still there";
}

TEST(HostProcessTest, AnswersWithNothingForAnInterfaceThatIsNotThere)
{
    HostProcess host;
    ASSERT_EQ(host.start(CVX_PRODUCER_HOST, SIMULATOR), std::nullopt);
    host.send("{\"request\":\"list\",\"interfaces\":true}\n{\"request\":\"interface\",\"number\":99}\n");
    EXPECT_NE(nextLine(host).find("devices"), std::string::npos);
    EXPECT_EQ(nextLine(host), R"({"interfaces":[],"problems":[]})");
    host.send("{\"request\":\"end\"}\n");
    EXPECT_EQ(endOf(host), 0);
}

TEST(HostProcessTest, EndsAtWhatIsNoRequest)
{
    HostProcess host;
    ASSERT_EQ(host.start(CVX_PRODUCER_HOST, SIMULATOR), std::nullopt);
    host.send("no JSON\n");
    EXPECT_EQ(nextLine(host), R"({"ended":true,"problems":[]})");
    EXPECT_EQ(endOf(host), 0);
}
