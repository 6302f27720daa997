// Tests through the camera system how a host searches its producer.

#include "tests/sdk/support/SystemTest.h"

#include <cstdlib>

using namespace CvxCPP;
using namespace std::chrono_literals;

using Calls = std::vector<std::string>;
using Ids = std::vector<std::string>;

class HostSearchTest : public SystemTest
{
protected:
    /// Disables the polls. After the first search, the system searches only when the test requests it.
    void neverPoll() { options.pollInterval = 1h; }
};

TEST_F(HostSearchTest, producerNeedsNoOptionalFunctions)
{
    setScript("minimal", "interface empty|E|GEV\n" + cameras(1));
    std::filesystem::copy_file(MINIMAL_PRODUCER, ctiPath("minimal.cti"));
    setenv("GENICAM_GENTL64_PATH", "/nowhere", 1);
    setenv("G_DEBUG", "fatal-warnings", 1);
    start();
    EXPECT_EQ(listIds(), Ids{"minimal.cti/net0/A1"});
    unsetenv("GENICAM_GENTL64_PATH");
    unsetenv("G_DEBUG");
    EXPECT_EQ(callsOf("minimal").front(), "load") << "a visible variable would be logged after \"load\"";
    EXPECT_TRUE(reports().empty());
}

TEST_F(HostSearchTest, failureIsReportedWithoutAnErrorTextIfTheProducerHasNone)
{
    const std::string failure = "fault IFUpdateDeviceList error -1010\n" + cameras(1);
    for (const char *fault : {"error", "throw"})
        addProducer(fault, failure + "fault GCGetLastError " + fault + " -1001\n");
    setScript("lacking", failure);
    std::filesystem::copy_file(MINIMAL_PRODUCER, ctiPath("lacking.cti"));
    start();
    EXPECT_TRUE(waitUntil([this] { return reports().size() == 3; }));
    for (const std::string &line : reports())
        EXPECT_EQ(line.substr(line.find(": ")), ": IFUpdateDeviceList failed with -1010 (GC_ERR_IO)") << line;
}

TEST_F(HostSearchTest, camerasSurviveOneFailedUpdate)
{
    neverPoll(); // Each list() makes one search.
    addProducer("a", cameras(1));
    start();
    ASSERT_EQ(list().size(), 1U);
    setScript("a", "fault IFUpdateDeviceList error -1010\n" + cameras(1));
    EXPECT_EQ(list().size(), 1U);
    EXPECT_TRUE(list().empty()) << "two failures are too many";
    EXPECT_EQ(countReports("IFUpdateDeviceList failed with -1010 (GC_ERR_IO)"), 1U);
    setScript("a", cameras(1));
    EXPECT_EQ(list().size(), 1U);
    EXPECT_EQ(countCalls("a", "load"), 1U);
}

TEST_F(HostSearchTest, devicesAreKeptIfAnIdCannotBeReadOnce)
{
    neverPoll();
    addProducer("a", cameras(2));
    start();
    ASSERT_EQ(list().size(), 2U);
    setScript("a", "fault IFGetDeviceID:A1 error -1010\n" + cameras(2));
    EXPECT_EQ(list().size(), 2U);
    setScript("a", cameras(2));
    EXPECT_EQ(list().size(), 2U);
    EXPECT_EQ(countReports("IFGetDeviceID failed with -1010 (GC_ERR_IO)"), 1U);
    setScript("a", "fault IFGetDeviceID:A1 error -1007\n" + cameras(2));
    EXPECT_EQ(listIds(), Ids{"a.cti/net0/A2"}) << "GC_ERR_INVALID_ID: the device is gone";
}

TEST_F(HostSearchTest, openInterfacesSurviveAFailedInterfaceList)
{
    neverPoll();
    options.interfaceUpdateInterval = 0ms;
    const std::string both = cameras(1) + "interface net1|Network 1|GEV\n";
    addProducer("a", both);
    start();
    ASSERT_EQ(list().size(), 1U);
    for (const std::string call : {"TLUpdateInterfaceList", "TLGetInterfaceID"}) {
        setScript("a", "fault " + call + " error -1010\n" + both);
        EXPECT_EQ(list().size(), 1U);
        EXPECT_EQ(countReports(call + " failed with -1010 (GC_ERR_IO)"), 1U);
    }
    setScript("a", "fault TLGetInterfaceID:net0 error -1007\n" + both);
    EXPECT_TRUE(list().empty()) << "GC_ERR_INVALID_ID: the interface is gone";
    EXPECT_EQ(countCalls("a", "IFClose"), 1U);
}

TEST_F(HostSearchTest, interfacesAreClosedBeforeTheSystemAndTheLibrary)
{
    addProducer("a", "interface x|X|GEV\ninterface y|Y|GEV\n");
    addProducer("b", "fault TLOpen error -1004\n");
    start();
    list();
    // The failed host has to close its producer before stop() kills the host.
    EXPECT_TRUE(waitUntil([this] { return callsOf("b").back() == "GCCloseLib"; }));
    stop();
    const auto calls = callsOf("a");
    ASSERT_GE(calls.size(), 4U);
    EXPECT_EQ(
        Calls(calls.end() - 4, calls.end()), (Calls{"IFClose x", "IFClose y", "TLClose", "GCCloseLib"}));
    EXPECT_EQ(countCalls("b", "TLClose"), 0U);
}

TEST_F(HostSearchTest, stringThatGrowsBetweenTwoCallsIsReadFourTimes)
{
    neverPoll();
    options.listReuse = 1h; // There is only one search.
    options.searchTimeout = 1min;
    for (const std::string fault : {"grow 3", "grow 4", "grow-1.3 3", "grow-1.3 4"})
        addProducer(fault, "interface n\ndevice n|1\nfault IFGetDeviceID " + fault + '\n');
    start();
    EXPECT_EQ(listIds(), (Ids{"grow 3.cti/n/1", "grow-1.3 3.cti/n/1"}));
    for (const char *producer : {"grow 3", "grow 4", "grow-1.3 3", "grow-1.3 4"})
        EXPECT_EQ(countCalls(producer, "IFGetDeviceID"), 4 * 2U) << producer;
}

TEST_F(HostSearchTest, deviceIdThatCanNeverBeReadHidesNoOtherDevice)
{
    neverPoll();
    addProducer("a", "fault IFGetDeviceID:A1 error -1010\n" + cameras(2));
    start();
    for (int search = 0; search < 3; ++search)
        EXPECT_EQ(listIds(), Ids{"a.cti/net0/A2"}) << search;
}
