#include "sdk/cvxcpp/SearchState.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

constexpr TimePoint searchTime{100s};

} // namespace

class SearchStateTest : public testing::Test
{
protected:
    SearchState search{1s};
};

TEST_F(SearchStateTest, newProducerIsResponsiveButHasNoResults)
{
    EXPECT_TRUE(search.isResponsive());
    EXPECT_FALSE(search.takeListRequest());
    EXPECT_EQ(search.nextInterfaceRequest(), std::nullopt);
    search.searchEnded(searchTime);
    EXPECT_FALSE(search.isFresh(searchTime));
}

TEST_F(SearchStateTest, listIsFreshForTheReuseTimeAfterItsSearch)
{
    search.listReceived(searchTime, true);
    EXPECT_EQ(search.listCount(), 1U);
    EXPECT_TRUE(search.isFresh(searchTime + 999ms));
    EXPECT_TRUE(search.isInterfaceFresh("net", searchTime + 999ms));
    EXPECT_FALSE(search.isFresh(searchTime + 1s));
    search.searchEnded(searchTime + 1s);
    EXPECT_TRUE(search.isFresh(searchTime + 1999ms))
        << "a slow producer does not reduce the reuse time of other lists";
    search.deadlineMissed();
    search.searchEnded(searchTime + 1900ms);
    EXPECT_FALSE(search.isFresh(searchTime + 2s)) << "this producer had no part in the second search";
}

TEST_F(SearchStateTest, interfaceUpdateRefreshesOnlyThatInterface)
{
    search.listReceived(searchTime, true);
    search.interfaceReceived("net", searchTime + 1s, true);
    EXPECT_TRUE(search.isInterfaceFresh("net", searchTime + 1999ms));
    EXPECT_FALSE(search.isInterfaceFresh("other", searchTime + 1999ms));
    EXPECT_FALSE(search.isInterfaceFresh("net", searchTime + 2s));
    EXPECT_FALSE(search.isFresh(searchTime + 1s));
}

TEST_F(SearchStateTest, requestsStayPendingUntilTheyAreAnswered)
{
    search.requestList();
    EXPECT_TRUE(search.takeListRequest());
    EXPECT_FALSE(search.takeListRequest());
    for (const char *interface : {"c", "b", "a"})
        search.requestInterface(interface);
    EXPECT_EQ(search.nextInterfaceRequest(), "a");
    search.interfaceReceived("a", searchTime, true);
    EXPECT_FALSE(search.isInterfacePending("a"));
    EXPECT_EQ(search.nextInterfaceRequest(), "b");
    search.dropInterfaceRequest("b");
    EXPECT_TRUE(search.isInterfacePending("c"));
    search.requestList();
    search.listReceived(searchTime, true);
    EXPECT_FALSE(search.isInterfacePending("c")) << "a list answers every earlier request";
    EXPECT_FALSE(search.takeListRequest());
}

TEST_F(SearchStateTest, producerIsUnresponsiveUntilItsNextReplyInTime)
{
    search.deadlineMissed();
    EXPECT_FALSE(search.isResponsive());
    for (const bool isInTime : {false, true, false, true}) {
        search.listReceived(searchTime, isInTime);
        EXPECT_EQ(search.isResponsive(), isInTime);
        search.interfaceReceived("net", searchTime, !isInTime);
        EXPECT_EQ(search.isResponsive(), !isInTime);
    }
}

TEST_F(SearchStateTest, lostProducerKeepsOnlyItsListRequest)
{
    search.listReceived(searchTime, true);
    search.interfaceReceived("net", searchTime, true);
    search.requestInterface("net");
    search.requestList();
    search.producerLost();
    EXPECT_FALSE(search.isResponsive());
    EXPECT_FALSE(search.isInterfaceFresh("net", searchTime));
    EXPECT_FALSE(search.isInterfacePending("net"));
    EXPECT_TRUE(search.takeListRequest());
}
