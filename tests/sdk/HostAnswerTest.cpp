#include "sdk/cvxcpp/ProducerAnswer.h"
#include "tests/sdk/support/OutOfMemory.h"
#include "tests/sdk/support/SystemTest.h"

using namespace CvxCPP;
using namespace std::chrono_literals;

struct FakeHost
{
    const char *name;
    std::string script; ///< Of the shell; descriptor 3 is the socket.
    std::string reason;
};

/// The host program replaced by something that does not keep to the protocol.
class HostAnswerTest : public SystemTest, public testing::WithParamInterface<FakeHost>
{
protected:
    /// Asked once only, when it is started.
    void useHost(const std::string &script)
    {
        const auto host = directory.path() / "FakeHost";
        writeFile(host, "#!/bin/sh\n" + script + '\n');
        std::filesystem::permissions(host, std::filesystem::perms::owner_all);
        options.hostProgram = host.string();
        options.firstRestart = 1h;
        options.lookInterval = 1h;
        options.reuseTime = 1h;
    }
};

TEST_P(HostAnswerTest, IsReportedOnceAndEndsTheHost)
{
    useHost(GetParam().script);
    writeFile(ctiPath("a.cti"), "");
    start();
    EXPECT_TRUE(list().empty());
    EXPECT_TRUE(waitUntil([this] { return !reports().empty(); }));
    stop();
    ASSERT_EQ(reports().size(), 1U) << testing::PrintToString(reports());
    EXPECT_EQ(countReports("cti/a.cti: " + GetParam().reason), 1U) << reports().front();
}

INSTANTIATE_TEST_SUITE_P(Hosts, HostAnswerTest,
    testing::Values(FakeHost{"Garbage", "read line <&3; echo 'no JSON' >&3; sleep 100",
                        "sent an answer that cannot be read"},
        FakeHost{"Binary", "head -c 5000 /dev/urandom >&3; echo >&3; sleep 100",
            "sent an answer that cannot be read"},
        FakeHost{
            "HalfAnAnswer", "read line <&3; printf '{\"interfaces\":[' >&3; exit 3", "exited with code 3"},
        FakeHost{"NoAnswer", "read line <&3; exit 0", "exited with code 0"},
        FakeHost{"WithoutEnd", "head -c 70000000 /dev/zero >&3; sleep 100", "sent an answer without end"},
        FakeHost{"TwoAnswers",
            "read line <&3; printf '{\"interfaces\":[]}\\n{\"interfaces\":[]}\\n' >&3; sleep 100",
            "sent more than the answer that it was asked for"},
        FakeHost{"UnaskedAnswer",
            "read line <&3; echo '{\"interfaces\":[]}' >&3; sleep 0.3; echo x >&3; sleep 100",
            "sent an answer that nobody asked for"},
        FakeHost{"ProblemsWithLongNames",
            "name=$(head -c 100 /dev/zero | tr '\\0' x); read line <&3; "
            "printf '{\"interfaces\":[],\"problems\":[{\"call\":\"%sa\"},{\"call\":\"%sb\"}]}\\n' "
            "$name $name >&3; read line <&3",
            "xxx"},
        FakeHost{"ClosedSocket", "exec 3>&-; sleep 100", "closed its connection and was killed"},
        FakeHost{"EndUnasked", "read line <&3; echo '{\"ended\":true}' >&3; sleep 100",
            "sent an answer that cannot be read"}),
    [](const auto &test) { return test.param.name; });

TEST_F(HostAnswerTest, AnAnswerWithoutEndDoesNotKeepTheSystemFromEnding)
{
    useHost("read line <&3; echo '{\"interfaces\":[]}' >&3; read line <&3; exec yes >&3");
    writeFile(ctiPath("a.cti"), "");
    start();
    EXPECT_TRUE(list().empty());
    EXPECT_LT(timeOf([this] { stop(); }), 2500ms);
    EXPECT_EQ(countReports("while it was closed"), 1U) << testing::PrintToString(reports());
}

TEST_F(HostAnswerTest, AnInterfaceThatHasGoneMeanwhileIsLeftToTheNextList)
{
    useHost(R"(while read line; do
    case $line in
    *'"list"'*) echo '{"interfaces":[{"number":1,"id":"net0","devices":[{"id":"A1"}]}]}' ;;
    *'"interface"'*) echo '{"interfaces":[]}' ;;
    *) exit 0 ;;
    esac
done <&3 >&3)");
    options.reuseTime = 0ms; // Asked whenever the program asks.
    writeFile(ctiPath("a.cti"), "");
    start();
    const auto update = feature(*interfaceOf(list(), 0), "DeviceUpdateList");
    EXPECT_EQ(update->RunCommand(), CvxErrorSuccess);
    EXPECT_EQ(listIds(), std::vector<std::string>{"a.cti/net0/A1"});
    EXPECT_TRUE(reports().empty()) << testing::PrintToString(reports());
}

TEST_F(HostAnswerTest, AnAnswerIsNoneWithoutMemory)
{
    const std::string line = R"({"interfaces":[]})";
    ProducerAnswer answer;
    bool isAnswer = true;
    {
        const OutOfMemory outOfMemory;
        isAnswer = parseAnswer(line, answer);
    }
    EXPECT_FALSE(isAnswer);
    EXPECT_TRUE(parseAnswer(line, answer));
}

TEST_F(HostAnswerTest, AProgramThatCannotBeExecutedIsReported)
{
    const auto host = directory.path() / "FakeHost";
    writeFile(host, "#!/nowhere/interpreter\n");
    std::filesystem::permissions(host, std::filesystem::perms::owner_all);
    options.hostProgram = host.string();
    options.firstRestart = 1h;
    writeFile(ctiPath("a.cti"), "");
    start();
    EXPECT_TRUE(list().empty());
    EXPECT_TRUE(waitUntil([this] { return !reports().empty(); }));
    EXPECT_EQ(reports().front(),
        ctiPath("a.cti").string() + ": cannot start " + host.string() + ": No such file or directory");
}
