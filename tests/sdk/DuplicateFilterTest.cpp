#include "sdk/cvxcpp/DuplicateFilter.h"

#include <cstddef>
#include <gtest/gtest.h>
#include <string>

namespace {

struct Candidate
{
    const char *id, *serial;
    bool isOwned;
};

/// Returns one string for each producer with '1' for each camera that the producer lists, otherwise '0'.
std::vector<std::string> listed(const std::vector<std::vector<Candidate>> &producers)
{
    std::vector<std::vector<CameraIdentity>> identities;
    std::vector<std::vector<DuplicateCandidate>> candidates;
    for (const auto &cameras : producers) {
        identities.emplace_back();
        for (const Candidate &one : cameras)
            identities.back().push_back(identityOf({one.id, "V", "M", one.serial, "", ""}));
    }
    for (std::size_t i = 0; i < producers.size(); ++i) {
        candidates.emplace_back();
        for (std::size_t k = 0; k < producers[i].size(); ++k)
            candidates.back().push_back({&identities[i][k], producers[i][k].isOwned});
    }
    std::vector<std::string> result;
    for (const std::vector<bool> &isListed : withoutDuplicates(candidates)) {
        result.emplace_back();
        for (const bool isOneListed : isListed)
            result.back() += isOneListed ? '1' : '0';
    }
    return result;
}

} // namespace

TEST(DuplicateFilterTest, ownerListsTheCameraOtherwiseTheFirstProducer)
{
    const Candidate free{"1", "S", false}, owned{"1", "S", true}, clone{"2", "S", false};
    const Candidate other{"3", "T", false}, withoutSerial{"DEV_001122334455", "", false};
    const Candidate mac{"00:11:22:33:44:55", "U", false}, otherSerial{"00:11:22:33:44:55", "W", false};
    const struct
    {
        const char *name;
        std::vector<std::vector<Candidate>> producers;
        std::vector<std::string> listed;
    } rows[] = {
        {"no cameras", {{}, {}}, {"", ""}},
        {"first producer", {{free}, {free, other}, {free}}, {"1", "01", "0"}},
        {"owner", {{free}, {other, owned}, {free}}, {"0", "11", "0"}},
        {"two owners", {{owned}, {owned}}, {"1", "0"}},
        {"clones in one producer", {{free, clone}, {free, clone}}, {"11", "00"}},
        {"clones of the owner", {{free}, {owned, clone}}, {"0", "11"}},
        {"MAC address", {{withoutSerial}, {mac, other}}, {"1", "01"}},
        {"two serial numbers with one MAC address", {{mac}, {otherSerial}, {withoutSerial}}, {"1", "1", "0"}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(listed(row.producers), row.listed) << row.name;
}
