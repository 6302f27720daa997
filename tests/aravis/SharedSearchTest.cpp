// These tests check when a search is shared.

#include "sdk/aravis/SharedSearch.h"

#include <gtest/gtest.h>

TEST(SharedSearch, searchResultIsSharedUntilItIsTooOld)
{
    int searches = 0;
    const auto find = [&] {
        ++searches;
        return std::vector<FoundDevice>(1);
    };
    SharedSearch fresh(find, std::chrono::minutes(1));
    EXPECT_EQ(fresh.devices().size(), 1U);
    EXPECT_EQ(fresh.devices().size(), 1U);
    EXPECT_EQ(searches, 1);
    SharedSearch old(find, std::chrono::milliseconds(0));
    old.devices();
    old.devices();
    EXPECT_EQ(searches, 3);
}
