#include "tests/sdk/support/SystemTest.h"

#include <fcntl.h>
#include <unistd.h>

using namespace CvxCPP;
using namespace std::chrono_literals;

struct Fault
{
    std::string function, action;
    std::string reason; ///< A part of the one line that reports it; empty for no line.
};

void PrintTo(const Fault &fault, std::ostream *stream)
{
    *stream << fault.function << ' ' << fault.action;
}

/// One driver misbehaves in one way; another one beside it is well.
class FaultTableTest : public SystemTest, public testing::WithParamInterface<Fault>
{
protected:
    FaultTableTest()
    {
        options.firstRestart = 1h; // One failure, one report.
        options.endWait = 700ms;
    }

    /// Everybody else's cameras are listed, and at the end one line names the file and the reason.
    void expectOthersAreListed(const std::string &reason)
    {
        start();
        waitUntil([this] { return countListed("well.cti") == 3; });
        EXPECT_EQ(countListed("well.cti"), 3U);
        if (!reason.empty() && isFailureOfListing()) {
            EXPECT_TRUE(waitUntil([this] { return !reports().empty(); }));
        }
        EXPECT_LT(timeOf([this] { stop(); }), 2000ms);
        EXPECT_EQ(reports().size(), reason.empty() ? 0U : 1U) << testing::PrintToString(reports());
        EXPECT_EQ(countReports("cti/bad.cti: "), reports().size());
        EXPECT_EQ(countReports(reason), reports().size()) << testing::PrintToString(reports());
    }

    std::size_t countListed(const std::string &producer)
    {
        std::size_t count = 0;
        for (const std::string &id : listIds())
            count += id.rfind(producer, 0) == 0 ? 1 : 0;
        return count;
    }

    static bool isFailureOfListing() { return GetParam().function.find("Close") == std::string::npos; }
};

TEST_P(FaultTableTest, HarmsNobodyElse)
{
    if (GetParam().action == "hang") {
        options.answerWait = 900ms;
        options.answerLimit = 1200ms;
    }
    addProducer("bad", "fault " + GetParam().function + ' ' + GetParam().action + '\n' + cameras(2));
    addProducer("well", cameras(3));
    expectOthersAreListed(GetParam().reason);
}

namespace {

std::vector<Fault> faultsOfEveryFunction()
{
    std::vector<Fault> faults;
    for (const std::string function : {"GCInitLib", "TLOpen", "TLUpdateInterfaceList", "TLGetNumInterfaces",
             "TLGetInterfaceID", "TLOpenInterface", "IFUpdateDeviceList", "IFGetNumDevices", "IFGetDeviceID",
             "IFGetDeviceInfo", "IFClose", "TLClose", "GCCloseLib"}) {
        faults.push_back(
            {function, "error -1010", function + " failed with -1010 (GC_ERR_IO): the driver's own words"});
        faults.push_back({function, "error 3", function + " failed with 3 (no GenTL code)"});
        faults.push_back({function, "crash", "SIGSEGV (Segmentation fault)"});
        faults.push_back({function, "abort", "SIGABRT (Aborted)"});
        faults.push_back({function, "throw", function + " failed: threw an exception: thrown by the driver"});
        faults.push_back({function, "exit 7", "exited with code 7"});
        const bool isClosing = function.find("Close") != std::string::npos;
        faults.push_back({function, "hang",
            isClosing ? "did not end within 0.7 s and was killed"
                      : "did not answer within 1.2 s and was killed"});
    }
    return faults;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Functions, FaultTableTest, testing::ValuesIn(faultsOfEveryFunction()));

INSTANTIATE_TEST_SUITE_P(UntouchedOutputs, FaultTableTest,
    testing::Values(Fault{"TLOpen", "untouched", "TLOpen failed: gave no handle"},
        Fault{"TLGetNumInterfaces", "untouched", "TLGetNumInterfaces failed: gave no credible number"},
        Fault{"TLGetInterfaceID", "untouched", "TLGetInterfaceID failed: gave a text without a size"},
        Fault{"TLOpenInterface", "untouched", "TLOpenInterface failed: gave no handle"},
        Fault{"IFGetNumDevices", "untouched", "IFGetNumDevices failed: gave no credible number"},
        Fault{"IFGetDeviceID", "untouched", "IFGetDeviceID failed: gave a text without a size"},
        Fault{"IFGetDeviceInfo", "untouched", "IFGetDeviceInfo failed: gave a text without a size"},
        Fault{"TLGetInterfaceInfo", "untouched", ""}, Fault{"TLGetInterfaceInfo", "error -1003", ""}));

INSTANTIATE_TEST_SUITE_P(Loading, FaultTableTest,
    testing::Values(Fault{"load", "crash", "SIGSEGV"}, Fault{"load", "abort", "SIGABRT"},
        Fault{"load", "throw", "cti/bad.cti: "}, Fault{"load", "exit 0", "exited with code 0"},
        Fault{"load", "hang", "did not answer within"}, Fault{"load", "close", "exited with code 0"},
        Fault{"IFUpdateDeviceList", "fork", "SIGKILL"}));

class BadFileTest : public FaultTableTest
{
protected:
    void expectReport(const std::string &reason)
    {
        addProducer("well", cameras(3));
        start();
        EXPECT_TRUE(waitUntil([this] { return countListed("well.cti") == 3; }));
        EXPECT_TRUE(waitUntil([this] { return !reports().empty(); }));
        stop();
        ASSERT_EQ(reports().size(), 1U) << testing::PrintToString(reports());
        EXPECT_EQ(countReports("cti/bad.cti: " + reason), 1U) << reports().front();
    }
};

TEST_F(BadFileTest, ATextIsNoProducer)
{
    writeFile(ctiPath("bad.cti"), "This is no library.\n");
    expectReport("dlopen failed: ");
}

TEST_F(BadFileTest, AnEmptyFileIsNoProducer)
{
    writeFile(ctiPath("bad.cti"), "");
    expectReport("dlopen failed: ");
}

TEST_F(BadFileTest, AMissingFunctionIsNamed)
{
    std::filesystem::copy_file(INCOMPLETE_PRODUCER, ctiPath("bad.cti"));
    expectReport("dlsym failed: the library lacks IFGetDeviceInfo");
}

TEST_F(BadFileTest, AMegabyteOnStandardOutputDisturbsNothing)
{
    const int output = dup(STDOUT_FILENO);
    const int null = open("/dev/null", O_WRONLY | O_CLOEXEC);
    dup2(null, STDOUT_FILENO);
    addProducer("bad", "fault IFUpdateDeviceList print\n" + cameras(2));
    start();
    EXPECT_TRUE(waitUntil([this] { return countListed("bad.cti") == 2; }));
    stop();
    EXPECT_TRUE(reports().empty());
    dup2(output, STDOUT_FILENO);
    close(output);
    close(null);
}

TEST_F(BadFileTest, ADriverMayPrintWhereNobodyReads)
{
    const int output = dup(STDOUT_FILENO);
    int ends[2] = {-1, -1};
    ASSERT_EQ(pipe2(ends, O_CLOEXEC), 0);
    close(ends[0]);
    dup2(ends[1], STDOUT_FILENO);
    addProducer("bad", "fault IFUpdateDeviceList print\n" + cameras(2));
    start();
    const bool isListed = waitUntil([this] { return countListed("bad.cti") == 2; });
    stop();
    dup2(output, STDOUT_FILENO); // Before a failure is printed.
    close(output);
    close(ends[1]);
    EXPECT_TRUE(isListed);
    EXPECT_TRUE(reports().empty()) << testing::PrintToString(reports());
}

TEST_F(BadFileTest, AReportIsOneLineWhateverTheNameOfTheFile)
{
    writeFile(ctiPath("a\nb\xFF.cti"), "");
    start();
    EXPECT_TRUE(waitUntil([this] { return !reports().empty(); }));
    EXPECT_NE(reports().front().find("a\\nb\xEF\xBF\xBD.cti: dlopen failed"), std::string::npos);
}
