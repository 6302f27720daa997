#include "tests/sdk/support/SystemTest.h"

using namespace CvxCPP;

using Calls = std::vector<std::string>;

using TeardownTest = SystemTest;

TEST_F(TeardownTest, ClosesEverythingInOrder)
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

TEST_F(TeardownTest, ClosesWhatWasOpenedWhenTheStartFails)
{
    addProducer("a", "fault TLOpen error -1004\n");
    start();
    ASSERT_TRUE(waitUntil([&] { return countCalls("a", "GCCloseLib") > 0; }));
    EXPECT_EQ(countCalls("a", "TLClose"), 0U) << "what was not opened is not closed";
}

TEST_F(TeardownTest, ASecondStartLoadsTheProducersAnew)
{
    addProducer("a", cameras(1));
    start();
    EXPECT_EQ(list().size(), 1U);
    stop();
    ASSERT_EQ(system->Startup(), CvxErrorSuccess);
    EXPECT_EQ(list().size(), 1U);
    EXPECT_EQ(countCalls("a", "load"), 2U);
}
