// These tests check when a search is shared, and how long a device is kept that searches do not find.

#include "sdk/aravis/SharedSearch.h"

#include <gtest/gtest.h>

namespace {

using Ids = std::vector<std::string>;

/// Runs one search per element of `found`, which finds these devices. Returns the reported devices of each
/// search.
std::vector<Ids> listed(const std::vector<Ids> &found, SharedSearch::Transport transport)
{
    std::size_t round = 0;
    const auto find = [&] {
        std::vector<FoundDevice> devices;
        for (const std::string &id : found.at(round++))
            devices.emplace_back().id = id;
        return devices;
    };
    SharedSearch search(find, transport, std::chrono::milliseconds(0));
    std::vector<Ids> result(found.size());
    for (Ids &ids : result)
        for (const FoundDevice &device : search.devices())
            ids.push_back(device.id);
    return result;
}

} // namespace

TEST(SharedSearch, searchResultIsSharedUntilItIsTooOld)
{
    int searches = 0;
    const auto find = [&] {
        ++searches;
        return std::vector<FoundDevice>(1);
    };
    SharedSearch fresh(find, SharedSearch::Transport::Reliable, std::chrono::minutes(1));
    EXPECT_EQ(fresh.devices().size(), 1U);
    EXPECT_EQ(fresh.devices().size(), 1U);
    EXPECT_EQ(searches, 1);
    SharedSearch old(find, SharedSearch::Transport::Reliable, std::chrono::milliseconds(0));
    old.devices();
    old.devices();
    EXPECT_EQ(searches, 3);
}

TEST(SharedSearch, deviceIsKeptForOneMissedSearchIfRepliesCanGetLost)
{
    const std::vector<Ids> found{{"a", "b"}, {"b"}, {"b", "a"}, {"b"}, {"b"}, {"a"}};
    EXPECT_EQ(listed(found, SharedSearch::Transport::Lossy),
        (std::vector<Ids>{{"a", "b"}, {"b", "a"}, {"b", "a"}, {"b", "a"}, {"b"}, {"a", "b"}}));
    EXPECT_EQ(listed(found, SharedSearch::Transport::Reliable), found);
}
