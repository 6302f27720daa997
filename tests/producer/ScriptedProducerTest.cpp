// What all our producers share, tested with a producer whose device source follows a script.

#include "tests/producer/ProducerSession.h"

#include <algorithm>
#include <cstdlib>
#include <future>
#include <gtest/gtest.h>
#include <thread>

using namespace GenTL;

using Ids = std::vector<std::string>;

class ScriptedProducer : public testing::Test
{
protected:
    void SetUp() override { session.updateInterfaces(); }
    void TearDown() override { unsetenv("SCRIPTED_PRODUCER"); }

    static void script(const char *event) { setenv("SCRIPTED_PRODUCER", event, 1); }

    const LoadedProducer &producer() const { return session.producer(); }
    GC_ERROR update(IF_HANDLE handle) const { return producer().IFUpdateDeviceList(handle, nullptr, 500); }

    const ProducerSession session{SCRIPTED_PRODUCER_FILE};
};

TEST_F(ScriptedProducer, failedDeviceSearchKeepsTheList)
{
    const IF_HANDLE handle = session.open("throws");
    ASSERT_EQ(update(handle), GC_ERR_SUCCESS);
    EXPECT_EQ(update(handle), GC_ERR_ERROR);
    EXPECT_EQ(session.lastError(), std::pair(GC_ERR_ERROR, std::string("The device search failed.")));
    EXPECT_EQ(session.deviceIds(handle), Ids{"kept"});
}

TEST_F(ScriptedProducer, failedInterfaceSearchKeepsTheList)
{
    const Ids before = session.interfaceIds();
    script("interface search fails");
    EXPECT_EQ(producer().TLUpdateInterfaceList(session.system(), nullptr, 500), GC_ERR_ERROR);
    EXPECT_EQ(session.lastError().second, "The interface search failed.");
    EXPECT_EQ(session.interfaceIds(), before);
}

TEST_F(ScriptedProducer, exceptionOfAnyTypeBecomesAnErrorCode)
{
    const std::tuple<const char *, GC_ERROR, std::string> expected[] = {
        {"exhausts memory", GC_ERR_OUT_OF_MEMORY, "Out of memory."},
        {"throws an int", GC_ERR_ERROR, "Unknown exception."},
        {"long message", GC_ERR_ERROR, std::string(511, 'x')},
    };
    for (const auto &[id, code, message] : expected) {
        EXPECT_EQ(update(session.open(id)), code) << id;
        EXPECT_EQ(session.lastError(), std::pair(code, message)) << id;
    }
}

TEST_F(ScriptedProducer, sourceThatCannotStartLeavesTheProducerUninitialised)
{
    ASSERT_EQ(producer().GCCloseLib(), GC_ERR_SUCCESS);
    script("start fails");
    EXPECT_EQ(producer().GCInitLib(), GC_ERR_ERROR);
    EXPECT_EQ(producer().GCCloseLib(), GC_ERR_NOT_INITIALIZED);
    unsetenv("SCRIPTED_PRODUCER");
    EXPECT_EQ(producer().GCInitLib(), GC_ERR_SUCCESS);
}

TEST_F(ScriptedProducer, entriesWithAnEmptyOrRepeatedIdAreLeftOut)
{
    const IF_HANDLE handle = session.open("doubtful IDs");
    ASSERT_EQ(update(handle), GC_ERR_SUCCESS);
    EXPECT_EQ(session.deviceIds(handle), (Ids{"twice", "cut", "last"}));
    EXPECT_EQ(readInt32(infoCall(producer().IFGetDeviceInfo, handle, "last", DEVICE_INFO_ACCESS_STATUS)),
        DEVICE_ACCESS_STATUS_BUSY);

    const Ids interfaces = session.interfaceIds();
    EXPECT_EQ(interfaces.size(), 9U);
    EXPECT_EQ(std::count(interfaces.begin(), interfaces.end(), "empty"), 1);
}

TEST_F(ScriptedProducer, openInterfaceFollowsTheListOfTheSystem)
{
    const IF_HANDLE handle = session.open("empty");
    script("interfaces are renamed");
    EXPECT_EQ(session.openInterfaceString(handle, INTERFACE_INFO_DISPLAYNAME), "Interface empty");
    EXPECT_TRUE(session.updateInterfaces());
    EXPECT_EQ(session.openInterfaceString(handle, INTERFACE_INFO_DISPLAYNAME), "New empty");
}

TEST_F(ScriptedProducer, openInterfaceOutlivesItsEntryInTheList)
{
    const IF_HANDLE handle = session.open("empty");
    script("interfaces are gone");
    EXPECT_TRUE(session.updateInterfaces());
    EXPECT_TRUE(session.interfaceIds().empty());
    EXPECT_EQ(codeOf(infoCall(producer().TLGetInterfaceInfo, session.system(), "empty", INTERFACE_INFO_ID)),
        GC_ERR_INVALID_ID);
    EXPECT_EQ(session.openInterfaceString(handle, INTERFACE_INFO_DISPLAYNAME), "Interface empty");
    EXPECT_FALSE(session.updateDevices(handle));
    EXPECT_TRUE(session.deviceIds(handle).empty());
    IF_HANDLE second = nullptr;
    EXPECT_EQ(producer().TLOpenInterface(session.system(), "empty", &second), GC_ERR_RESOURCE_IN_USE);
}

TEST_F(ScriptedProducer, interfacesAreSearchedAtTheSameTime)
{
    // Each search waits until the other one has started too.
    const IF_HANDLE one = session.open("meets one");
    const IF_HANDLE another = session.open("meets another");
    std::future<GC_ERROR> elsewhere = std::async(std::launch::async, [&] { return update(one); });
    EXPECT_EQ(update(another), GC_ERR_SUCCESS);
    EXPECT_EQ(elsewhere.get(), GC_ERR_SUCCESS);
    EXPECT_EQ(session.deviceIds(one), Ids{"met"});
    EXPECT_EQ(session.deviceIds(another), Ids{"met"});
}

TEST_F(ScriptedProducer, oneInterfaceIsNeverSearchedTwiceAtOnce)
{
    const IF_HANDLE handle = session.open("one at a time");
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&] {
            for (int round = 0; round < 200; ++round)
                EXPECT_EQ(update(handle), GC_ERR_SUCCESS);
        });
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(session.deviceIds(handle), Ids{"never overlapped"});
}
