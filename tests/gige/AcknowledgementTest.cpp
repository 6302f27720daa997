#include "sdk/gige/DiscoveryAcknowledgement.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

namespace {

constexpr std::size_t macPosition = 8 + 0x0A, addressPosition = 8 + 0x24, vendorPosition = 8 + 0x48;
constexpr std::size_t modelPosition = 8 + 0x68, serialPosition = 8 + 0xD8, userNamePosition = 8 + 0xE8;

/// Builds a discovery acknowledgement as a camera sends it.
class Datagram
{
public:
    Datagram() : m_bytes(256)
    {
        put(0, {0x00, 0x00, 0x00, 0x03, 0x00, 0xF8, 0x12, 0x34});
        put(macPosition, {0x00, 0x11, 0x1C, 0xF0, 0x12, 0x34});
        put(addressPosition, {169, 254, 3, 1});
        putText(vendorPosition, "Orvelle");
        putText(modelPosition, "Kx200");
        putText(serialPosition, "24990001");
    }

    Datagram &put(std::size_t position, const std::vector<std::uint8_t> &bytes)
    {
        std::copy(bytes.begin(), bytes.end(), m_bytes.begin() + static_cast<std::ptrdiff_t>(position));
        return *this;
    }
    Datagram &putText(std::size_t position, const std::string &text)
    {
        return put(position, std::vector<std::uint8_t>(text.begin(), text.end()));
    }
    Datagram &resize(std::size_t size)
    {
        m_bytes.resize(size);
        return *this;
    }

    std::optional<DiscoveryAcknowledgement> parse() const
    {
        const std::vector<std::uint8_t> exact(
            m_bytes); // Without spare capacity, so that a sanitizer sees each overrun.
        return parseAcknowledgement(exact.data(), exact.size());
    }

private:
    std::vector<std::uint8_t> m_bytes;
};

} // namespace

TEST(DiscoveryAcknowledgement, fieldsAreRead)
{
    const auto answer = Datagram().putText(userNamePosition, "Test bench").parse();
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->requestId, 0x1234);
    EXPECT_EQ(macToString(answer->camera.mac), "00:11:1c:f0:12:34");
    EXPECT_EQ(ipv4ToString(answer->camera.address), "169.254.3.1");
    EXPECT_EQ(answer->camera.vendor, "Orvelle");
    EXPECT_EQ(answer->camera.model, "Kx200");
    EXPECT_EQ(answer->camera.serial, "24990001");
    EXPECT_EQ(answer->camera.userName, "Test bench");
}

TEST(DiscoveryAcknowledgement, otherDatagramsAreIgnored)
{
    EXPECT_FALSE(Datagram().resize(255).parse()) << "truncated";
    EXPECT_FALSE(Datagram().resize(0).parse()) << "empty";
    EXPECT_FALSE(Datagram().put(0, {0x80, 0x06}).parse()) << "an error status";
    EXPECT_FALSE(Datagram().put(2, {0x00, 0x81}).parse()) << "the answer to another command";
    EXPECT_FALSE(Datagram().put(4, {0x00, 0xF7}).parse()) << "a wrong length";
    EXPECT_TRUE(Datagram().resize(1400).parse()) << "bytes after the payload";
}

TEST(DiscoveryAcknowledgement, stringMayFillItsFieldWithoutNul)
{
    const std::string full(32, 'v');
    const auto answer = Datagram().putText(vendorPosition, full).parse();
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->camera.vendor, full);
    EXPECT_EQ(answer->camera.model, "Kx200");
}

TEST(DiscoveryAcknowledgement, stringsAreMadePrintable)
{
    const std::pair<std::string, std::string> rows[] = {
        {"  Kx\t200 \n", "Kx 200"},
        {"K\xC3\xA4mera", "K\xC3\xA4mera"},
        {"\xE6\x9C\xBA\xF0\x9F\x93\xB7", "\xE6\x9C\xBA\xF0\x9F\x93\xB7"},
        {"\xFFKx", "\xEF\xBF\xBDKx"},
        {"Kx\xC3", "Kx\xEF\xBF\xBD"},
        {"\xC0\xAF", "\xEF\xBF\xBD\xEF\xBF\xBD"},
        {"\xE0\x80\xAF", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
        {"\xED\xA0\x80", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
        {"\xF4\x90\x80\x80", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
    };
    for (const auto &[sent, expected] : rows) {
        const auto answer
            = Datagram().putText(modelPosition, std::string(32, '\0')).putText(modelPosition, sent).parse();
        ASSERT_TRUE(answer);
        EXPECT_EQ(answer->camera.model, expected);
    }
}

TEST(DiscoveryAcknowledgement, commandAllowsABroadcastAnswer)
{
    const std::array<std::uint8_t, 8> expected{0x42, 0x11, 0x00, 0x02, 0x00, 0x00, 0xAB, 0xCD};
    EXPECT_EQ(discoveryCommand(0xABCD), expected);
}
