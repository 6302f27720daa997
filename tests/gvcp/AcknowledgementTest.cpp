// These tests check how the answer of a camera is parsed, including damaged and hostile answers.

#include "sdk/gvcp/DiscoveryAcknowledgement.h"
#include "tests/gvcp/AcknowledgementBuilder.h"

#include <gtest/gtest.h>

namespace {

using Builder = AcknowledgementBuilder;

std::optional<DiscoveryAcknowledgement> parsed(const Builder &builder)
{
    return parseAcknowledgement(builder.bytes().data(), builder.bytes().size());
}

} // namespace

TEST(DiscoveryAcknowledgement, allFieldsAreRead)
{
    const auto answer = parsed(Builder()
                                   .requestId(0x1234)
                                   .mac({0x00, 0x11, 0x1C, 0xF0, 0x12, 0x34})
                                   .put(Builder::methodsPosition, {0, 0, 0, 7, 0, 0, 0, 5})
                                   .address({169, 254, 3, 1})
                                   .put(Builder::maskPosition, {255, 255, 0, 0})
                                   .put(Builder::gatewayPosition, {169, 254, 0, 9})
                                   .text(Builder::versionPosition, "2.7")
                                   .serial("24990001")
                                   .text(Builder::userNamePosition, "Test bench"));
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->requestId, 0x1234);
    EXPECT_EQ(answer->offeredMethods, 7U);
    EXPECT_EQ(answer->enabledMethods, persistentAddressMethod | linkLocalMethod);
    EXPECT_EQ(macToString(answer->camera.mac), "00:11:1c:f0:12:34");
    EXPECT_EQ(ipv4ToString(answer->camera.address), "169.254.3.1");
    EXPECT_EQ(ipv4ToString(answer->camera.mask), "255.255.0.0");
    EXPECT_EQ(ipv4ToString(answer->camera.gateway), "169.254.0.9");
    EXPECT_EQ(answer->camera.vendor, "Orvelle");
    EXPECT_EQ(answer->camera.model, "Kx200");
    EXPECT_EQ(answer->camera.version, "2.7");
    EXPECT_EQ(answer->camera.serial, "24990001");
    EXPECT_EQ(answer->camera.userName, "Test bench");
}

TEST(DiscoveryAcknowledgement, otherDatagramsAreRefused)
{
    for (std::size_t size = 0; size < 256; ++size)
        EXPECT_FALSE(parsed(Builder().resize(size))) << size << " bytes";
    EXPECT_FALSE(parsed(Builder().put(0, {0x80, 0x06}))) << "an error status";
    EXPECT_FALSE(parsed(Builder().put(2, {0x00, 0x81}))) << "the answer to another command";
    EXPECT_FALSE(parsed(Builder().put(0, {0x42, 0x11, 0x00, 0x02}))) << "a command";
    for (const std::uint8_t length : std::initializer_list<std::uint8_t>{0x00, 0xF7, 0xF9})
        EXPECT_FALSE(parsed(Builder().put(4, {0x00, length}))) << "a wrong length";
    EXPECT_FALSE(parsed(Builder().put(4, {0x01, 0xF8}).resize(600))) << "a greater length";
}

TEST(DiscoveryAcknowledgement, bytesAfterTheAnswerAreIgnored)
{
    EXPECT_TRUE(parsed(Builder().resize(257)));
    EXPECT_TRUE(parsed(Builder().resize(2048)));
}

TEST(DiscoveryAcknowledgement, stringCanFillItsFieldWithoutNul)
{
    const auto answer = parsed(Builder()
                                   .text(Builder::vendorPosition, std::string(32, 'v'))
                                   .text(Builder::userNamePosition, std::string(16, 'u')));
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->camera.vendor, std::string(32, 'v'));
    EXPECT_EQ(answer->camera.model, "Kx200");
    EXPECT_EQ(answer->camera.userName, std::string(16, 'u'));
}

TEST(DiscoveryAcknowledgement, stringsBecomeUtf8WithoutControlCharacters)
{
    const std::string unknown = "\xEF\xBF\xBD"; // U+FFFD
    const std::pair<std::string, std::string> expected[] = {
        {"  Kx\t200 \n", "Kx 200"}, {"\x7F\x1B[31mKx", "[31mKx"},
        {"Kx\xC2\x85\xC2\xA0", "Kx \xC2\xA0"}, // U+0085 is a control character, U+00A0 is not.
        {" \t ", ""}, {"K\xC3\xA4mera", "K\xC3\xA4mera"},
        {"\xE6\x9C\xBA\xF0\x9F\x93\xB7", "\xE6\x9C\xBA\xF0\x9F\x93\xB7"}, {"\xFFKx", unknown + "Kx"},
        {"Kx\xC3", "Kx" + unknown}, {"\xC3Kx", unknown + "Kx"}, {"\xC0\xAF", unknown + unknown}, // Overlong
        {"\xE0\x80\xAF", unknown + unknown + unknown}, // Overlong
        {"\xED\xA0\x80", unknown + unknown + unknown}, // A surrogate
        {"\xF4\x90\x80\x80", unknown + unknown + unknown + unknown}, // Above U+10FFFF
        {std::string(31, 'x') + "\xC3\xA4", std::string(31, 'x') + unknown}, // Cut by the end of the field
    };
    for (const auto &[sent, text] : expected) {
        const auto answer = parsed(Builder()
                                       .text(Builder::modelPosition, std::string(32, '\0'))
                                       .text(Builder::modelPosition, sent)
                                       .text(Builder::modelPosition + 32, std::string(1, '\0')));
        ASSERT_TRUE(answer);
        EXPECT_EQ(answer->camera.model, text) << testing::PrintToString(sent);
    }
}

TEST(DiscoveryAcknowledgement, commandPermitsABroadcastAnswer)
{
    const std::array<std::uint8_t, 8> expected{0x42, 0x11, 0x00, 0x02, 0x00, 0x00, 0xAB, 0xCD};
    EXPECT_EQ(discoveryCommand(0xABCD), expected);
}
