// Which cameras are listed at which network card.

#include "sdk/aravis/NetworkCards.h"

#include "tests/sdk/support/OutOfDescriptors.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <ostream>
#include <system_error>

namespace {

CardAddress card(const char *name, const char *address, unsigned prefix)
{
    const std::uint32_t mask = prefix == 0 ? 0 : ~0U << (32 - prefix);
    return {name, address, ntohl(inet_addr(address)), mask};
}

const std::vector<CardAddress> cards{
    card("lo", "127.0.0.1", 8),
    card("office", "192.168.1.20", 24),
    card("camera", "192.168.1.129", 25), // A smaller network within the other.
    card("straight", "169.254.3.1", 16),
    card("second", "169.254.7.9", 16), // The same network at a second card.
    card("point", "10.1.1.1", 32),
};

struct Device
{
    const char *address;
    const char *expected; ///< The card's name.
};

std::ostream &operator<<(std::ostream &stream, const Device &device)
{
    return stream << '"' << device.address << '"';
}

} // namespace

class CardOf : public testing::TestWithParam<Device>
{ };

TEST_P(CardOf, IsTheOneWithTheSmallestNetworkThatHoldsTheDevice)
{
    const CardAddress *const found = cardOf(cards, GetParam().address);
    EXPECT_EQ(found ? found->card : "none", GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Devices, CardOf,
    testing::Values(Device{"192.168.1.7", "office"}, Device{"192.168.1.200", "camera"},
        Device{"169.254.200.1", "straight"}, Device{"127.0.0.1", "lo"}, Device{"10.1.1.1", "point"},
        Device{"10.1.1.2", "none"}, Device{"192.168.2.7", "none"}, Device{"", "none"}, Device{"USB3", "none"},
        Device{"::1", "none"}));

TEST(NetworkCards, EveryAddressOfThisMachineBelongsToItsOwnNetwork)
{
    const std::vector<CardAddress> own = cardAddresses();
    for (const CardAddress &address : own) {
        EXPECT_EQ(ntohl(inet_addr(address.address.c_str())), address.number);
        EXPECT_FALSE(address.card.empty());
        EXPECT_NE(cardOf(own, address.address), nullptr) << address.address;
    }
}

TEST(NetworkCards, AFailureToListThemSaysWhatFailed)
{
    std::string reason;
    {
        const OutOfDescriptors outOfDescriptors; // Listing them takes one.
        try {
            cardAddresses();
        } catch (const std::system_error &error) {
            reason = error.what();
        }
    }
    EXPECT_EQ(reason, "The network cards cannot be listed: Too many open files");
}
