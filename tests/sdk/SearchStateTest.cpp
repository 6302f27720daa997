#include "sdk/cvxcpp/SearchState.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

using Request = SearchState::Request;

constexpr TimePoint searchTime{100s};

} // namespace

class SearchStateTest : public testing::Test
{
protected:
    /// Lets a search of 500 ms end at this time.
    void finishSearch(TimePoint end, const SearchState::ListReply &reply = {})
    {
        search.requestSent(end - 500ms);
        search.listReceived(end, reply);
    }

    SearchState search{{2s, 250ms, 1s, true}};
};

TEST_F(SearchStateTest, everyNewHostIsAskedForAShortAndThenForABackgroundSearch)
{
    for (int host = 0; host < 2; ++host) {
        EXPECT_FALSE(search.isCurrent(searchTime));
        EXPECT_FALSE(search.isFresh(searchTime));
        EXPECT_EQ(search.takeListRequest(searchTime), Request::Short);
        EXPECT_EQ(search.takeListRequest(searchTime), std::nullopt);
        finishSearch(searchTime);
        EXPECT_EQ(search.takeListRequest(searchTime), Request::Background);
        finishSearch(searchTime);
        EXPECT_EQ(search.takeListRequest(searchTime), std::nullopt);
        EXPECT_EQ(search.listCount(), 2U * (host + 1));
        search.requestBackgroundSearch();
        search.requestInterface("net");
        search.producerLost();
        EXPECT_FALSE(search.isInterfacePending("net"));
        EXPECT_FALSE(search.isInterfaceFresh("net", searchTime));
        EXPECT_FALSE(search.isResponsive());
    }
}

TEST_F(SearchStateTest, firstSearchThatIsAsLongAsOthersNeedsNoSecondOne)
{
    search = SearchState({2s, 250ms, 1s, false});
    search.takeListRequest(searchTime);
    finishSearch(searchTime);
    EXPECT_EQ(search.takeListRequest(searchTime), std::nullopt);
}

TEST_F(SearchStateTest, listIsCurrentForAPollIntervalAndOneMoreSearch)
{
    finishSearch(searchTime);
    EXPECT_TRUE(search.isCurrent(searchTime + 2499ms));
    EXPECT_FALSE(search.isCurrent(searchTime + 2500ms));
    finishSearch(searchTime, {true, false, 1s});
    EXPECT_TRUE(search.isCurrent(searchTime + 4499ms)) << "the pause is four times the processor time";
    EXPECT_FALSE(search.isCurrent(searchTime + 4500ms));
}

TEST_F(SearchStateTest, listIsFreshForItsReuseTime)
{
    finishSearch(searchTime);
    EXPECT_TRUE(search.isFresh(searchTime + 249ms));
    EXPECT_FALSE(search.isFresh(searchTime + 250ms));
    EXPECT_TRUE(search.isInterfaceFresh("net", searchTime + 999ms));
    EXPECT_FALSE(search.isInterfaceFresh("net", searchTime + 1s));
    search.listReturned(searchTime + 1s);
    EXPECT_TRUE(search.isInterfaceFresh("net", searchTime + 1999ms))
        << "the caller of a list updates each interface without a search";
    EXPECT_FALSE(search.isFresh(searchTime + 1s));
}

TEST_F(SearchStateTest, interfaceUpdateRefreshesOnlyThatInterface)
{
    finishSearch(searchTime);
    search.requestSent(searchTime + 900ms);
    EXPECT_TRUE(search.isSearching());
    search.interfaceReceived("net", searchTime + 1s, true);
    EXPECT_FALSE(search.isSearching());
    EXPECT_TRUE(search.isInterfaceFresh("net", searchTime + 1999ms));
    EXPECT_FALSE(search.isInterfaceFresh("other", searchTime + 1999ms));
    EXPECT_FALSE(search.isInterfaceFresh("net", searchTime + 2s));
}

TEST_F(SearchStateTest, backgroundSearchPausesForFourTimesItsProcessorTime)
{
    finishSearch(searchTime, {true, false, 800ms});
    EXPECT_EQ(search.nextListRequest(), searchTime + 3200ms);
    EXPECT_EQ(search.takeListRequest(searchTime + 3199ms), std::nullopt);
    search.requestShortSearch();
    EXPECT_EQ(search.takeListRequest(searchTime + 3199ms), Request::Short) << "callers need not wait for it";
    EXPECT_EQ(search.takeListRequest(searchTime + 3200ms), Request::Background);
    EXPECT_EQ(search.nextListRequest(), TimePoint::max());
}

TEST_F(SearchStateTest, selfUpdatingProducerIsSearchedForCallersOnly)
{
    finishSearch(searchTime, {true, true, 0ms});
    search.requestBackgroundSearch();
    EXPECT_EQ(search.takeListRequest(searchTime), std::nullopt);
    EXPECT_TRUE(search.isCurrent(searchTime + 1h)) << "the producer would have reported a change";
    search.requestCollection();
    EXPECT_EQ(search.takeListRequest(searchTime + 49ms), std::nullopt);
    EXPECT_EQ(search.nextListRequest(), searchTime + 50ms) << "a flood of changes is limited";
    EXPECT_EQ(search.takeListRequest(searchTime + 50ms), Request::Collection);
    search.requestCollection();
    search.requestShortSearch();
    EXPECT_EQ(search.takeListRequest(searchTime), Request::Short);
    EXPECT_EQ(search.takeListRequest(searchTime), std::nullopt) << "a search collects as well";
}

TEST_F(SearchStateTest, requestsStayPendingUntilTheyAreAnswered)
{
    finishSearch(searchTime, {true, true, 0ms});
    for (const char *interface : {"c", "b", "a"})
        search.requestInterface(interface);
    EXPECT_EQ(search.nextInterfaceRequest(), "a");
    search.interfaceReceived("a", searchTime, true);
    EXPECT_FALSE(search.isInterfacePending("a"));
    EXPECT_EQ(search.nextInterfaceRequest(), "b");
    search.dropInterfaceRequest("b");
    EXPECT_TRUE(search.isInterfacePending("c"));
    search.requestShortSearch();
    finishSearch(searchTime, {true, true, 0ms});
    EXPECT_FALSE(search.isInterfacePending("c")) << "a list answers every earlier request";
    EXPECT_EQ(search.takeListRequest(searchTime), std::nullopt);
}

TEST_F(SearchStateTest, listDoesNotAnswerAPendingBackgroundSearch)
{
    finishSearch(searchTime);
    finishSearch(searchTime + 1s);
    EXPECT_EQ(search.takeListRequest(searchTime + 1s), Request::Background)
        << "only background searches remove cameras";
}

TEST_F(SearchStateTest, producerIsUnresponsiveUntilItsNextReplyInTime)
{
    EXPECT_TRUE(search.isResponsive());
    search.deadlineMissed();
    EXPECT_FALSE(search.isResponsive());
    for (const bool isInTime : {false, true, false, true}) {
        finishSearch(searchTime, {isInTime, false, 0ms});
        EXPECT_EQ(search.isResponsive(), isInTime);
        search.interfaceReceived("net", searchTime, !isInTime);
        EXPECT_EQ(search.isResponsive(), !isInTime);
    }
}
