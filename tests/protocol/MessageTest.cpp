#include "sdk/protocol/Message.h"
#include "sdk/protocol/DiscoveryMessages.h"

#include <gtest/gtest.h>

namespace {

template <typename Content>
std::optional<Content> received(const Content &content)
{
    std::string line = Message(7, content).toLine();
    EXPECT_EQ(line.find('\n'), line.size() - 1) << line;
    line.pop_back();
    const auto message = Message::fromLine(line);
    EXPECT_TRUE(message) << line;
    EXPECT_EQ(message->id(), 7U);
    return message->content<Content>();
}

} // namespace

TEST(Message, cameraListIsUnchangedAfterTheRoundTrip)
{
    const InterfaceRecord interface {
        18446744073709551615U, "if", "Net \"0\"", "GEV",
        {
            {
                "id", "v\n", "m\\", "s\x01", "\xC3\xA4", "U3V"
            }
        }
    };
    const Problem problem{"TLOpen", -1004, "in use"};
    const auto reply = received(CameraListReply{{interface, InterfaceRecord()}, {problem}, 250, true});
    ASSERT_TRUE(reply);
    EXPECT_EQ(reply->interfaces, (std::vector<InterfaceRecord>{interface, InterfaceRecord()}));
    ASSERT_EQ(reply->problems.size(), 1U);
    EXPECT_EQ(reply->problems[0].call, "TLOpen");
    EXPECT_EQ(reply->problems[0].code, -1004);
    EXPECT_EQ(reply->problems[0].text, "in use");
    EXPECT_EQ(reply->processorTime, 250U);
    EXPECT_TRUE(reply->isSelfUpdating);
}

TEST(Message, requestsAreUnchangedAfterTheRoundTrip)
{
    EXPECT_TRUE(received(ListCamerasRequest{true, 200})->updatesInterfaces);
    EXPECT_FALSE(received(ListCamerasRequest{false, 200})->updatesInterfaces);
    EXPECT_EQ(received(ListCamerasRequest{false, 200})->timeout, 200U);
    EXPECT_EQ(received(ListInterfaceRequest{12, 200})->number, 12U);
    EXPECT_EQ(received(ListInterfaceRequest{12, 300})->timeout, 300U);
    EXPECT_TRUE(received(ProducerInfoRequest()));
    EXPECT_TRUE(received(CloseProducerRequest()));
    EXPECT_TRUE(received(ListChangedNotice()));
}

TEST(Message, otherRepliesAreUnchangedAfterTheRoundTrip)
{
    const auto info = received(ProducerInfoReply{"Orvelle", "Sim", "2.0", 1, 5, {"DSClose"}});
    EXPECT_EQ(info->vendor + info->model + info->version, "OrvelleSim2.0");
    EXPECT_EQ(std::pair(info->genTlMajor, info->genTlMinor), std::pair(1U, 5U));
    EXPECT_EQ(info->missingFunctions, std::vector<std::string>{"DSClose"});
    EXPECT_EQ(received(ProducerFailedReply{{"dlopen", 0, "gone"}})->problem.text, "gone");
    EXPECT_EQ(received(ProducerClosedReply{{{"TLClose", -1, ""}}})->problems.at(0).code, -1);
}

TEST(Message, invalidUtf8IsReplaced)
{
    EXPECT_EQ(received(ProducerFailedReply{{"a\xFF", 0, ""}})->problem.call, "a\xEF\xBF\xBD");
}

TEST(Message, contentOfTheWrongKindIsNotReturned)
{
    EXPECT_FALSE(Message(1, ProducerClosedReply()).content<ProducerFailedReply>());
}

TEST(DeviceRecord, recordsAreOrderedByIdThenByTheirOtherFields)
{
    const DeviceRecord first{"a", "z", "", "", "", ""};
    const DeviceRecord second{"b", "a", "", "", "", ""};
    const DeviceRecord third{"b", "a", "", "", "", "GEV"};
    EXPECT_TRUE(first < second && second < third);
    EXPECT_FALSE(second < first || third < second || third < third);
    EXPECT_FALSE(second == third);
}

class MalformedBody : public testing::TestWithParam<const char *>
{ };

TEST_P(MalformedBody, malformedBodyIsRefused)
{
    const auto message
        = Message::fromLine(std::string(R"({"id":1,"kind":"cameraList","body":)") + GetParam() + "}");
    ASSERT_TRUE(message);
    EXPECT_FALSE(message->content<CameraListReply>());
}

INSTANTIATE_TEST_SUITE_P(Bodies, MalformedBody,
    testing::Values("null", "[]", "{}", R"({"interfaces":[]})", R"({"interfaces":5,"problems":[]})",
        R"({"interfaces":[{}],"problems":[]})",
        R"({"interfaces":[],"problems":[{"call":1,"code":0,"text":""}]})",
        R"({"interfaces":[],"problems":[{"call":"","code":"x","text":""}]})"));

class MalformedLine : public testing::TestWithParam<std::string>
{ };

TEST_P(MalformedLine, malformedLineIsRefused)
{
    EXPECT_FALSE(Message::fromLine(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Lines, MalformedLine,
    testing::Values(R"({"id":1,"kind":"producerClosed","body":{"problems":[1e300]}})", "", "text", "{", "[]",
        "null", "{}", "\xFF\xFE", std::string(100000, '['), R"({"id":1,"kind":"cameraList"})",
        R"({"id":1,"body":{}})", R"({"kind":"cameraList","body":{}})",
        R"({"id":"1","kind":"cameraList","body":{}})", R"({"id":1,"kind":2,"body":{}})",
        R"({"id":1,"kind":"cameraList","body":{}} x)", "{\"id\":1,\"kind\":\"\xFF\",\"body\":{}}"));
