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
    void finish(Request request, TimePoint end, const SearchState::ListReply &reply = {})
    {
        search.listRequestSent(request, end - 500ms);
        search.listReceived(end, reply);
    }

    SearchState search{{2s, 250ms, 1s, true}};
};

TEST_F(SearchStateTest, everyNewHostIsAskedForAShortAndThenForABackgroundSearch)
{
    for (unsigned host = 0; host < 2; ++host) {
        search.requestPoll(); // A poll before the start of the host changes nothing.
        EXPECT_FALSE(search.isCurrent(searchTime));
        EXPECT_FALSE(search.isFresh(searchTime));
        EXPECT_EQ(search.takeListRequest(searchTime), Request::Short);
        EXPECT_EQ(search.takeListRequest(searchTime), std::nullopt);
        finish(Request::Short, searchTime);
        EXPECT_EQ(search.takeListRequest(searchTime), Request::Background);
        finish(Request::Background, searchTime);
        EXPECT_EQ(search.takeListRequest(searchTime), std::nullopt);
        EXPECT_EQ(search.listCount(), 2 * (host + 1));
        search.requestPoll();
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
    finish(Request::Short, searchTime);
    EXPECT_EQ(search.takeListRequest(searchTime), std::nullopt);
}

TEST_F(SearchStateTest, listIsCurrentForAPollIntervalAndOneMoreSearch)
{
    finish(Request::Background, searchTime);
    EXPECT_TRUE(search.isCurrent(searchTime + 2999ms)) << "2 s, 500 ms and a delay of 500 ms";
    EXPECT_FALSE(search.isCurrent(searchTime + 3s));
    finish(Request::Short, searchTime + 1s);
    EXPECT_FALSE(search.isCurrent(searchTime + 3s)) << "a short search may have missed cameras";
    finish(Request::Background, searchTime, {true, false, 1s});
    EXPECT_TRUE(search.isCurrent(searchTime + 20499ms)) << "a pause of 19.5 s instead of the poll interval";
    EXPECT_FALSE(search.isCurrent(searchTime + 20500ms));
}

TEST_F(SearchStateTest, listStaysCurrentDuringALongBackgroundSearch)
{
    finish(Request::Short, searchTime);
    search.listRequestSent(Request::Background, searchTime + 1s);
    EXPECT_TRUE(search.isSearching());
    EXPECT_TRUE(search.isCurrent(searchTime + 1h));
    search.listRequestSent(Request::Collection, searchTime + 1s);
    EXPECT_FALSE(search.isSearching()) << "a collection is no search that a caller can rely on";
}

TEST_F(SearchStateTest, listIsFreshForItsReuseTime)
{
    finish(Request::Short, searchTime);
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
    finish(Request::Short, searchTime);
    search.interfaceReceived("net", searchTime + 1s, true);
    EXPECT_TRUE(search.isInterfaceFresh("net", searchTime + 1999ms));
    EXPECT_FALSE(search.isInterfaceFresh("other", searchTime + 1999ms));
    EXPECT_FALSE(search.isInterfaceFresh("net", searchTime + 2s));
}

TEST_F(SearchStateTest, backgroundSearchPausesForItsProcessorTime)
{
    finish(Request::Background, searchTime, {true, false, 20ms});
    search.requestPoll();
    EXPECT_EQ(search.nextListRequest(), searchTime + 80ms) << "four times the processor time";
    finish(Request::Background, searchTime, {true, false, 100ms});
    EXPECT_EQ(search.nextListRequest(), searchTime + 1500ms) << "100 ms of 2 s";
    EXPECT_EQ(search.takeListRequest(searchTime + 1499ms), std::nullopt);
    search.requestShortSearch();
    EXPECT_EQ(search.takeListRequest(searchTime + 1499ms), Request::Short) << "callers need not wait for it";
    finish(Request::Short, searchTime + 1499ms, {true, false, 1s});
    EXPECT_EQ(search.takeListRequest(searchTime + 1500ms), Request::Background)
        << "short searches cannot postpone background searches";
    EXPECT_EQ(search.nextListRequest(), TimePoint::max());
    search.requestPoll();
    search.requestShortSearch();
    EXPECT_EQ(search.takeListRequest(searchTime + 1h), Request::Short) << "a caller comes first";
    search.requestShortSearch();
    EXPECT_EQ(search.takeListRequest(searchTime + 1h), Request::Background) << "but not twice";
    finish(Request::Background, searchTime, {true, false, 1h});
    search.requestPoll();
    EXPECT_EQ(search.nextListRequest(), searchTime + 30s) << "the longest pause";
}

TEST_F(SearchStateTest, selfUpdatingProducerIsSearchedForCallersOnly)
{
    const SearchState::ListReply reply{true, true, 0ms};
    finish(Request::Short, searchTime, reply);
    EXPECT_EQ(search.nextListRequest(), TimePoint::max());
    EXPECT_FALSE(search.isCurrent(searchTime + 3s)) << "a producer that hangs is noticed";
    search.requestPoll();
    EXPECT_EQ(search.nextListRequest(), searchTime + 50ms) << "a flood of changes is limited";
    EXPECT_EQ(search.takeListRequest(searchTime + 49ms), std::nullopt);
    EXPECT_EQ(search.takeListRequest(searchTime + 50ms), Request::Collection);
    search.requestCollection();
    search.requestShortSearch();
    EXPECT_EQ(search.takeListRequest(searchTime + 50ms), Request::Short);
    EXPECT_EQ(search.takeListRequest(searchTime + 50ms), std::nullopt) << "a search collects as well";
}

TEST_F(SearchStateTest, requestsStayPendingUntilTheyAreAnswered)
{
    const SearchState::ListReply reply{true, true, 0ms};
    finish(Request::Short, searchTime, reply);
    for (const char *interface : {"c", "b", "a"})
        search.requestInterface(interface);
    EXPECT_EQ(search.nextInterfaceRequest(), "a");
    search.interfaceReceived("a", searchTime, true);
    EXPECT_FALSE(search.isInterfacePending("a"));
    EXPECT_EQ(search.nextInterfaceRequest(), "b");
    search.dropInterfaceRequest("b");
    EXPECT_TRUE(search.isInterfacePending("c"));
    search.requestShortSearch();
    finish(Request::Short, searchTime, reply);
    EXPECT_FALSE(search.isInterfacePending("c")) << "a list answers every earlier request";
    EXPECT_EQ(search.takeListRequest(searchTime), std::nullopt);
}

TEST_F(SearchStateTest, producerIsUnresponsiveUntilItsNextReplyInTime)
{
    EXPECT_TRUE(search.isResponsive());
    search.deadlineMissed();
    EXPECT_FALSE(search.isResponsive());
    for (const bool isInTime : {false, true, false, true}) {
        finish(Request::Background, searchTime, {isInTime, false, 0ms});
        EXPECT_EQ(search.isResponsive(), isInTime);
        search.interfaceReceived("net", searchTime, !isInTime);
        EXPECT_EQ(search.isResponsive(), !isInTime);
    }
}
