#include "sdk/protocol/DeviceMessages.h"
#include "sdk/protocol/Message.h"
#include "sdk/protocol/NodeConversions.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <nlohmann/json.hpp>

using namespace CvxCPP;

namespace {

/// Sends a message and returns what arrives.
template <typename Content>
Content transmitted(const Content &content)
{
    std::string line = Message(7, content).toLine();
    line.pop_back(); // The line feed.
    const auto message = Message::fromLine(line);
    EXPECT_TRUE(message) << line;
    const auto received = message ? message->content<Content>() : std::nullopt;
    EXPECT_TRUE(received) << line;
    return received.value_or(Content());
}

NodeValue transmitted(const NodeValue &value)
{
    return transmitted(WriteValueRequest{"Node", value}).value;
}

/// Returns the JSON of a record, which contains all its members.
template <typename Record>
std::string jsonOf(const Record &record)
{
    return nlohmann::json(record).dump();
}

NodeInfo someInfo()
{
    NodeInfo info;
    info.name = "PixelFormat";
    info.displayName = "Pixel Format";
    info.category = "ImageFormatControl";
    info.toolTip = "tip";
    info.description = "text";
    info.unit = "µm";
    info.type = NodeType::Enumeration;
    info.visibility = NodeVisibility::Guru;
    info.representation = NodeRepresentation::MacAddress;
    info.isStreamable = true;
    info.pollingTime = 500;
    info.entries = {{"Mono8", "Mono 8", 0x01080001}, {"Mono16", "", -1}};
    info.selectors = {"A"};
    info.selected = {"B", "C"};
    return info;
}

NodeState someState()
{
    NodeState state;
    state.name = "Gain";
    state.access = NodeAccess::ReadWrite;
    state.lockReason = LockReason::LockedByNode;
    state.lockingNode = "GainAuto";
    state.value = 1.5;
    state.minimum = 0.0;
    state.maximum = 24.0;
    state.increment = std::int64_t(2);
    state.maxLength = 9;
    state.availableEntries = {"Mono8"};
    state.isCommandDone = false;
    state.problem = "none";
    return state;
}

} // namespace

TEST(DeviceMessages, valuesKeepTypeAndContent)
{
    const double tiny = std::numeric_limits<double>::denorm_min();
    const double infinite = std::numeric_limits<double>::infinity();
    const NodeValue values[] = {{}, std::int64_t(0), std::numeric_limits<std::int64_t>::min(),
        std::numeric_limits<std::int64_t>::max(), 1.0, 0.1, tiny, -infinite, true, false, std::string(),
        std::string("Größe\n\""), std::vector<std::uint8_t>(), std::vector<std::uint8_t>{0, 0x7F, 0xFF}};
    for (const NodeValue &value : values)
        EXPECT_EQ(transmitted(value), value) << toJson(value);
    const NodeValue nan = transmitted(NodeValue(std::nan("")));
    ASSERT_TRUE(std::holds_alternative<double>(nan));
    EXPECT_TRUE(std::isnan(std::get<double>(nan)));
}

TEST(DeviceMessages, valuesOfOtherFormsAreRefused)
{
    for (const char *json : {"[]", "{}", R"({"float": 1})", R"({"float": "1.5x"})", R"({"bytes": "0"})",
             R"({"bytes": "0g"})", R"({"bytes": 5})"})
        EXPECT_THROW(toNodeValue(nlohmann::json::parse(json)), std::exception) << json;
}

TEST(DeviceMessages, recordsOfNodesKeepAllMembers)
{
    EXPECT_EQ(jsonOf(transmitted(DeviceOpenedReply{{someInfo()}}).nodes.at(0)), jsonOf(someInfo()));
    EXPECT_EQ(jsonOf(transmitted(NodeStatesReply{{someState()}}).states.at(0)), jsonOf(someState()));
    EXPECT_NE(jsonOf(someInfo()), jsonOf(NodeInfo()));
    EXPECT_NE(jsonOf(someState()), jsonOf(NodeState()));
}

TEST(DeviceMessages, preparedStreamKeepsItsChunkFeatures)
{
    ChunkFeature feature;
    feature.name = "ChunkGain";
    feature.type = NodeType::Enumeration;
    feature.chunkId = std::numeric_limits<std::uint64_t>::max();
    feature.address = 12;
    feature.length = 4;
    feature.isBigEndian = true;
    feature.isSigned = true;
    feature.lowestBit = 3;
    feature.highestBit = 9;
    feature.entries = {{"On", "", 1}};
    const auto reply = transmitted(StreamPreparedReply{8, std::uint64_t(1) << 33U, 4096, {feature}});
    EXPECT_EQ(reply.buffers, 8U);
    EXPECT_EQ(reply.bufferSize, std::uint64_t(1) << 33U);
    EXPECT_EQ(reply.alignment, 4096U);
    EXPECT_EQ(jsonOf(reply.chunkFeatures.at(0)), jsonOf(feature));
}

TEST(DeviceMessages, failureKeepsReasonAndText)
{
    const auto failure = transmitted(RequestFailedReply{DeviceFailure::NoMemory, "Kaputt."});
    EXPECT_EQ(failure.failure, DeviceFailure::NoMemory);
    EXPECT_EQ(failure.text, "Kaputt.");
}

TEST(DeviceMessages, enumeratorThatDoesNotExistIsRefused)
{
    const std::string line = R"({"id": 7, "kind": "requestFailed", "body": {"failure": 10, "text": ""}})";
    EXPECT_FALSE(Message::fromLine(line)->content<RequestFailedReply>());
    EXPECT_THROW(nlohmann::json::parse(jsonOf(someInfo()))
                     .patch({{{"op", "replace"}, {"path", "/type"}, {"value", 8}}})
                     .get<NodeInfo>(),
        std::exception);
}
