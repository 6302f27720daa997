// What a host makes of a producer's answers, as the camera system sees it.

#include "tests/sdk/support/SystemTest.h"

#include <algorithm>
#include <cstdlib>

using namespace CvxCPP;
using namespace std::chrono_literals;

using Calls = std::vector<std::string>;
using Ids = std::vector<std::string>;

class HostSearchTest : public SystemTest
{
protected:
    /// Makes the system search only when the test asks for it.
    void neverPoll() { options.pollInterval = 1h; }

    /// Returns the timeouts that a producer got in the calls of an update function, for one interface if
    /// given.
    Calls timeoutsOf(const std::string &producer, const std::string &call) const
    {
        Calls timeouts;
        for (const std::string &line : callsOf(producer)) {
            if (line.rfind(call + ' ', 0) == 0)
                timeouts.push_back(line.substr(call.size() + 1));
        }
        return timeouts;
    }

    /// Waits for so many calls, and returns the timeouts of the first ones.
    Calls firstTimeouts(const std::string &producer, const std::string &call, std::size_t count)
    {
        EXPECT_TRUE(waitUntil([&] { return timeoutsOf(producer, call).size() >= count; }));
        Calls timeouts = timeoutsOf(producer, call);
        timeouts.resize(count);
        return timeouts;
    }
};

TEST_F(HostSearchTest, producerDoesNotSeeVariablesThatWouldHarmIt)
{
    addProducer("a", cameras(1));
    setenv("GENICAM_GENTL64_PATH", "/nowhere", 1);
    setenv("G_DEBUG", "fatal-warnings", 1);
    start();
    list();
    unsetenv("GENICAM_GENTL64_PATH");
    unsetenv("G_DEBUG");
    EXPECT_EQ(callsOf("a").front(), "load");
}

TEST_F(HostSearchTest, optionalFunctionsMayBeMissing)
{
    setScript("a", cameras(1));
    std::filesystem::copy_file(MINIMAL_PRODUCER, ctiPath("a.cti"));
    start();
    EXPECT_EQ(listIds(), Ids{"a.cti/net0/A1"});
    EXPECT_TRUE(reports().empty());
}

TEST_F(HostSearchTest, interfaceWithoutDevicesIsNotAskedForItsInfo)
{
    addProducer("a", "interface empty|E|GEV\n" + cameras(1)); // The producer would crash.
    start();
    EXPECT_EQ(listIds(), Ids{"a.cti/net0/A1"});
    EXPECT_TRUE(reports().empty());
}

TEST_F(HostSearchTest, repeatedDeviceIdCountsOncePerInterface)
{
    addProducer("a", "interface x|X|GEV\ninterface y|Y|GEV\ndevice x|1\ndevice x|1\ndevice y|1\n");
    start();
    EXPECT_EQ(listIds(), (Ids{"a.cti/x/1", "a.cti/y/1"}));
}

TEST_F(HostSearchTest, veryLongStringIsLeftOutAndReported)
{
    addProducer("a", "interface n|N|GEV\ndevice n|D|V|" + std::string(1 << 20, 'm') + "|S|N|GEV\n");
    start();
    const Cameras found = list();
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(modelOf(*found[0]), "");
    EXPECT_EQ(serialOf(*found[0]), "S");
    EXPECT_EQ(countReports("IFGetDeviceInfo"), 1U);
}

TEST_F(HostSearchTest, growingStringIsRequestedFourTimes)
{
    neverPoll();
    addProducer("new", "fault IFGetDeviceID grow\n" + cameras(1));
    addProducer("old", "fault IFGetDeviceID grow-1.3\n" + cameras(1)); // Reports it by another code.
    start();
    EXPECT_TRUE(list().empty());
    for (const char *producer : {"new", "old"})
        EXPECT_EQ(countCalls(producer, "IFGetDeviceID"), 4 * 2U) << "the size and the string each time";
}

TEST_F(HostSearchTest, interfacesAreSearchedAtTheSameTime)
{
    neverPoll();
    std::string script = "fault IFUpdateDeviceList meet 8\n"; // Fails unless eight calls run at once.
    for (char id = 'a'; id < 'a' + 8; ++id)
        script += std::string("interface ") + id + "\ndevice " + id + "|1\n";
    addProducer("p", script);
    start();
    EXPECT_EQ(list().size(), 8U);
}

TEST_F(HostSearchTest, slowSearchGetsMoreTimeAndKeepsIt)
{
    addProducer("a",
        "fault IFUpdateDeviceList:net0 search 1200\n" + cameras(1)
            + "interface net1|Network 1|GEV\ndevice net1|Q1\n");
    start();
    EXPECT_EQ(listIds(), Ids{"a.cti/net1/Q1"}) << "other interfaces do not wait for it";
    EXPECT_EQ(firstTimeouts("a", "IFUpdateDeviceList net0", 4), (Calls{"500", "1000", "2000", "2000"}));
    EXPECT_EQ(timeoutsOf("a", "IFUpdateDeviceList net1").back(), "500");
    EXPECT_EQ(listIds(), (Ids{"a.cti/net0/A1", "a.cti/net1/Q1"}));
    EXPECT_TRUE(reports().empty()) << testing::PrintToString(reports());
}

TEST_F(HostSearchTest, slowInterfaceListGetsMoreTimeAndKeepsIt)
{
    addProducer("a", "fault TLUpdateInterfaceList search 1200\n" + cameras(1));
    start();
    EXPECT_EQ(firstTimeouts("a", "TLUpdateInterfaceList", 4), (Calls{"500", "1000", "2000", "2000"}));
    EXPECT_TRUE(waitUntil([this] { return list().size() == 1; }));
    EXPECT_EQ(countCalls("a", "load"), 1U);
    EXPECT_TRUE(reports().empty()) << testing::PrintToString(reports());
}

TEST_F(HostSearchTest, searchThatNeverEndsIsReportedAndGetsLittleTimeAgain)
{
    addProducer("a", "interface net0\nfault IFUpdateDeviceList:net0 search 60000\n");
    start();
    EXPECT_EQ(
        firstTimeouts("a", "IFUpdateDeviceList net0", 5), (Calls{"500", "1000", "2000", "4000", "500"}));
    EXPECT_EQ(reports().size(), 1U) << testing::PrintToString(reports());
    EXPECT_EQ(countReports("IFUpdateDeviceList failed with -1011 (GC_ERR_TIMEOUT)"), 1U);
}

TEST_F(HostSearchTest, failureIsReportedWithoutTheProducersTextIfItHasNone)
{
    const std::string failure = "fault IFUpdateDeviceList error -1010\n" + cameras(1);
    addProducer("refusing", failure + "fault GCGetLastError error -1001\n");
    addProducer("throwing", failure + "fault GCGetLastError throw\n");
    setScript("lacking", failure);
    std::filesystem::copy_file(MINIMAL_PRODUCER, ctiPath("lacking.cti"));
    start();
    EXPECT_TRUE(waitUntil([this] { return reports().size() == 3; }));
    for (const std::string &line : reports())
        EXPECT_EQ(line.substr(line.find(": ")), ": IFUpdateDeviceList failed with -1010 (GC_ERR_IO)") << line;
}

TEST_F(HostSearchTest, interfaceSurvivesOneFailedUpdate)
{
    neverPoll(); // One list, one search.
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

TEST_F(HostSearchTest, deviceIdThatCannotBeReadOnceIsKept)
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

TEST_F(HostSearchTest, deviceIdThatCanNeverBeReadHidesNoOther)
{
    neverPoll();
    addProducer("a", "fault IFGetDeviceID:A1 error -1010\n" + cameras(2));
    start();
    for (int search = 0; search < 3; ++search)
        EXPECT_EQ(listIds(), Ids{"a.cti/net0/A2"}) << search;
}

TEST_F(HostSearchTest, interfaceWhoseIdCannotBeReadStaysOpen)
{
    neverPoll();
    options.interfaceUpdateInterval = 0ms;
    const std::string both = cameras(1) + "interface net1|Network 1|GEV\n";
    addProducer("a", both);
    start();
    ASSERT_EQ(list().size(), 1U);
    setScript("a", "fault TLGetInterfaceID:net0 error -1010\n" + both);
    EXPECT_EQ(list().size(), 1U);
    EXPECT_EQ(countReports("TLGetInterfaceID failed with -1010 (GC_ERR_IO)"), 1U);
    setScript("a", "fault TLGetInterfaceID:net0 error -1007\n" + both);
    EXPECT_TRUE(list().empty());
    EXPECT_EQ(countCalls("a", "IFClose"), 1U) << "an interface that is gone is closed";
}

TEST_F(HostSearchTest, failingInterfaceListKeepsTheOpenInterfaces)
{
    neverPoll();
    options.interfaceUpdateInterval = 0ms;
    addProducer("a", cameras(1));
    start();
    ASSERT_EQ(list().size(), 1U);
    setScript("a", "fault TLUpdateInterfaceList error -1010\n" + cameras(1));
    EXPECT_EQ(list().size(), 1U);
    EXPECT_EQ(countReports("TLUpdateInterfaceList failed with -1010"), 1U);
}

TEST_F(HostSearchTest, closesEverythingInOrder)
{
    addProducer("a", "interface x|X|GEV\ninterface y|Y|GEV\n");
    start();
    list();
    stop();
    const auto calls = callsOf("a");
    ASSERT_GE(calls.size(), 4U);
    EXPECT_EQ(
        Calls(calls.end() - 4, calls.end()), (Calls{"IFClose x", "IFClose y", "TLClose", "GCCloseLib"}));
    EXPECT_TRUE(reports().empty());
}

TEST_F(HostSearchTest, closesOnlyWhatWasOpenedIfTheStartFails)
{
    addProducer("a", "fault TLOpen error -1004\n");
    start();
    ASSERT_TRUE(waitUntil([&] { return countCalls("a", "GCCloseLib") > 0; }));
    EXPECT_EQ(countCalls("a", "TLClose"), 0U);
}
