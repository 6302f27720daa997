// What every producer of ours has from the shared part, seen through a producer whose source misbehaves.

#include "tests/producer/ProducerSession.h"

#include <algorithm>
#include <cstdlib>
#include <future>
#include <gtest/gtest.h>
#include <thread>

using namespace GenTL;

class ProducerSkeleton : public testing::Test
{
protected:
    void SetUp() override { session.updateInterfaces(); }
    void TearDown() override { unsetenv("SCRIPTED_PRODUCER"); }

    const LoadedProducer &producer() const { return session.producer(); }

    GC_ERROR update(IF_HANDLE handle) const { return producer().IFUpdateDeviceList(handle, nullptr, 500); }

    std::string lastErrorText() const
    {
        return readId([this](INFO_DATATYPE *, void *buffer, std::size_t *size) {
            GC_ERROR code = 0;
            return producer().GCGetLastError(&code, static_cast<char *>(buffer), size);
        });
    }

    const ProducerSession session{SCRIPTED_PRODUCER_FILE};
};

TEST_F(ProducerSkeleton, AFailedDeviceSearchKeepsTheList)
{
    const IF_HANDLE handle = session.open("throws");
    ASSERT_EQ(update(handle), GC_ERR_SUCCESS);
    EXPECT_EQ(update(handle), GC_ERR_ERROR);
    EXPECT_EQ(lastErrorText(), "The device search failed.");
    EXPECT_EQ(session.deviceIds(handle), std::vector<std::string>{"kept"});
}

TEST_F(ProducerSkeleton, AFailedInterfaceSearchKeepsTheList)
{
    const std::vector<std::string> before = session.interfaceIds();
    setenv("SCRIPTED_PRODUCER", "interface search fails", 1);
    EXPECT_EQ(producer().TLUpdateInterfaceList(session.system(), nullptr, 500), GC_ERR_ERROR);
    EXPECT_EQ(lastErrorText(), "The interface search failed.");
    EXPECT_EQ(session.interfaceIds(), before);
}

TEST_F(ProducerSkeleton, MemoryThatRunsOutHasItsOwnCode)
{
    EXPECT_EQ(update(session.open("exhausts memory")), GC_ERR_OUT_OF_MEMORY);
    EXPECT_EQ(lastErrorText(), "Out of memory.");
}

TEST_F(ProducerSkeleton, AnythingThrownIsAnError)
{
    EXPECT_EQ(update(session.open("throws an int")), GC_ERR_ERROR);
    EXPECT_EQ(lastErrorText(), "Unknown exception.");
}

TEST_F(ProducerSkeleton, AnEndlessErrorTextIsCut)
{
    EXPECT_EQ(update(session.open("long text")), GC_ERR_ERROR);
    EXPECT_EQ(lastErrorText(), std::string(511, 'x'));
}

TEST_F(ProducerSkeleton, ASourceThatCannotStartLeavesTheProducerClosed)
{
    ASSERT_EQ(producer().GCCloseLib(), GC_ERR_SUCCESS);
    setenv("SCRIPTED_PRODUCER", "start fails", 1);
    EXPECT_EQ(producer().GCInitLib(), GC_ERR_ERROR);
    EXPECT_EQ(producer().GCCloseLib(), GC_ERR_NOT_INITIALIZED);
    unsetenv("SCRIPTED_PRODUCER");
    EXPECT_EQ(producer().GCInitLib(), GC_ERR_SUCCESS);
}

TEST_F(ProducerSkeleton, EntriesThatCannotBeAskedAboutAreLeftOut)
{
    const IF_HANDLE handle = session.open("doubtful IDs");
    ASSERT_EQ(update(handle), GC_ERR_SUCCESS);
    EXPECT_EQ(session.deviceIds(handle), (std::vector<std::string>{"twice", "cut", "last"}));

    const std::vector<std::string> interfaces = session.interfaceIds();
    EXPECT_EQ(interfaces.size(), 9U);
    EXPECT_EQ(std::count(interfaces.begin(), interfaces.end(), "empty"), 1);
}

TEST_F(ProducerSkeleton, AnInterfaceWithoutDevicesHasAnEmptyList)
{
    const IF_HANDLE handle = session.open("empty");
    EXPECT_FALSE(session.updateDevices(handle));
    EXPECT_TRUE(session.deviceIds(handle).empty());
}

TEST_F(ProducerSkeleton, TheAccessStatusIsTheSources)
{
    const IF_HANDLE handle = session.open("doubtful IDs");
    ASSERT_EQ(update(handle), GC_ERR_SUCCESS);
    EXPECT_EQ(readInt32(deviceInfo(producer(), handle, "last", DEVICE_INFO_ACCESS_STATUS)),
        DEVICE_ACCESS_STATUS_BUSY);
}

TEST_F(ProducerSkeleton, InterfacesAreSearchedSideBySide)
{
    // Each search waits until the other is on its way as well.
    const IF_HANDLE one = session.open("meets one");
    const IF_HANDLE another = session.open("meets another");
    std::future<GC_ERROR> elsewhere = std::async(std::launch::async, [&] { return update(one); });
    EXPECT_EQ(update(another), GC_ERR_SUCCESS);
    EXPECT_EQ(elsewhere.get(), GC_ERR_SUCCESS);
    EXPECT_EQ(session.deviceIds(one), std::vector<std::string>{"met"});
    EXPECT_EQ(session.deviceIds(another), std::vector<std::string>{"met"});
}

TEST_F(ProducerSkeleton, OneInterfaceIsNeverSearchedTwiceAtOnce)
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
    EXPECT_EQ(session.deviceIds(handle), std::vector<std::string>{"never twice at once"});
}
