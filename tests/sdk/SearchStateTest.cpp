#include "sdk/cvxcpp/SearchState.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

constexpr TimePoint start{100s};

} // namespace

class SearchStateTest : public testing::Test
{
protected:
    SearchState search{1s};
};

TEST_F(SearchStateTest, startsResponsiveAndWithoutResults)
{
    EXPECT_TRUE(search.isResponsive());
    EXPECT_FALSE(search.isFresh(start));
    EXPECT_FALSE(search.takeListRequest());
    EXPECT_EQ(search.nextInterfaceRequest(), std::nullopt);
    search.searchEnded(start);
    EXPECT_FALSE(search.isFresh(start)) << "a search without a list leaves nothing to reuse";
}

TEST_F(SearchStateTest, listIsFreshForTheReuseTime)
{
    search.listReceived(start, true);
    EXPECT_EQ(search.listCount(), 1U);
    EXPECT_TRUE(search.isFresh(start + 999ms));
    EXPECT_TRUE(search.isInterfaceFresh("net", start + 999ms));
    EXPECT_FALSE(search.isFresh(start + 1s));
    search.searchEnded(start + 1s);
    EXPECT_TRUE(search.isFresh(start + 1999ms)) << "a slow neighbour does not make the list old";
}

TEST_F(SearchStateTest, listOfAnUnresponsiveProducerIsNotRenewedByTheSearch)
{
    search.listReceived(start, true);
    search.deadlineMissed();
    search.searchEnded(start + 900ms);
    EXPECT_FALSE(search.isFresh(start + 1s));
}

TEST_F(SearchStateTest, interfaceIsFreshByItself)
{
    search.listReceived(start, true);
    search.interfaceReceived("net", start + 1s, true);
    EXPECT_TRUE(search.isInterfaceFresh("net", start + 1999ms));
    EXPECT_FALSE(search.isInterfaceFresh("other", start + 1999ms));
    EXPECT_FALSE(search.isInterfaceFresh("net", start + 2s));
    EXPECT_FALSE(search.isFresh(start + 1s));
}

TEST_F(SearchStateTest, requestsStayPendingUntilTheyAreAnswered)
{
    search.requestList();
    EXPECT_TRUE(search.takeListRequest());
    EXPECT_FALSE(search.takeListRequest());
    search.requestInterface("b");
    search.requestInterface("a");
    EXPECT_EQ(search.nextInterfaceRequest(), "a");
    EXPECT_TRUE(search.isInterfacePending("a"));
    search.interfaceReceived("a", start, true);
    EXPECT_FALSE(search.isInterfacePending("a"));
    EXPECT_EQ(search.nextInterfaceRequest(), "b");
    search.dropInterfaceRequest("b");
    EXPECT_EQ(search.nextInterfaceRequest(), std::nullopt);
}

TEST_F(SearchStateTest, listAnswersEveryEarlierRequest)
{
    search.requestList();
    search.requestInterface("net");
    search.interfaceReceived("other", start, true);
    search.listReceived(start + 2s, true);
    EXPECT_FALSE(search.takeListRequest());
    EXPECT_FALSE(search.isInterfacePending("net"));
}

TEST_F(SearchStateTest, producerIsUnresponsiveUntilItsNextReplyInTime)
{
    search.deadlineMissed();
    EXPECT_FALSE(search.isResponsive());
    search.listReceived(start, false);
    EXPECT_FALSE(search.isResponsive());
    search.listReceived(start, true);
    EXPECT_TRUE(search.isResponsive());
    search.interfaceReceived("net", start, false);
    EXPECT_FALSE(search.isResponsive());
    search.interfaceReceived("net", start, true);
    EXPECT_TRUE(search.isResponsive());
}

TEST_F(SearchStateTest, lostProducerHasNothingFreshAndNothingPendingButItsList)
{
    search.listReceived(start, true);
    search.interfaceReceived("net", start, true);
    search.requestInterface("net");
    search.requestList();
    search.producerLost();
    EXPECT_FALSE(search.isResponsive());
    EXPECT_FALSE(search.isInterfaceFresh("net", start));
    EXPECT_FALSE(search.isInterfacePending("net"));
    EXPECT_TRUE(search.takeListRequest());
}
