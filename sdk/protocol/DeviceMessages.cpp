#include "sdk/protocol/DeviceMessages.h"

#include "sdk/protocol/JsonConversions.h"
#include "sdk/protocol/NodeConversions.h"

using Json = nlohmann::json;

/// Defines the conversions of a message that has no content.
#define CORVIX_EMPTY_MESSAGE(Type)                                                                           \
    void to_json(Json &json, const Type &)                                                                   \
    {                                                                                                        \
        json = Json::object();                                                                               \
    }                                                                                                        \
    void from_json(const Json &, Type &) { }

CORVIX_JSON_CONVERSIONS(OpenDeviceRequest, interfaceId, deviceId, access)
CORVIX_JSON_CONVERSIONS(DeviceOpenedReply, nodes)
CORVIX_JSON_CONVERSIONS(ReadStatesRequest, names)
CORVIX_JSON_CONVERSIONS(NodeStatesReply, states)
CORVIX_JSON_CONVERSIONS(ReadValueRequest, name)
CORVIX_JSON_CONVERSIONS(BeginTemporaryChangesRequest, remembered, remembersWrites)
CORVIX_EMPTY_MESSAGE(TemporaryChangesBegunReply)
CORVIX_JSON_CONVERSIONS(EndTemporaryChangesRequest, putsBack)
CORVIX_JSON_CONVERSIONS(TemporaryChangesEndedReply, refused, reasons)
CORVIX_JSON_CONVERSIONS(PrepareStreamRequest, buffers)
CORVIX_JSON_CONVERSIONS(StreamPreparedReply, buffers, bufferSize, alignment, chunkFeatures)
CORVIX_JSON_CONVERSIONS(StartStreamRequest, buffers, bufferSize, onlyNewest)
CORVIX_EMPTY_MESSAGE(StreamStartedReply)
CORVIX_EMPTY_MESSAGE(StopStreamRequest)
CORVIX_EMPTY_MESSAGE(StreamStoppedReply)
CORVIX_EMPTY_MESSAGE(CloseDeviceRequest)
CORVIX_EMPTY_MESSAGE(DeviceClosedReply)
CORVIX_JSON_CONVERSIONS(NodesChangedNotice, names)
CORVIX_JSON_CONVERSIONS(DeviceLostNotice, reason)

void to_json(Json &json, const RequestFailedReply &value)
{
    json = {{"failure", static_cast<int>(value.failure)}, {"text", value.text}};
}

void from_json(const Json &json, RequestFailedReply &value)
{
    value.failure = toEnumeration(json.at("failure"), DeviceFailure::NoMemory);
    json.at("text").get_to(value.text);
}

void to_json(Json &json, const WriteValueRequest &value)
{
    json = {{"name", value.name}, {"value", toJson(value.value)}};
}

void from_json(const Json &json, WriteValueRequest &value)
{
    json.at("name").get_to(value.name);
    value.value = toNodeValue(json.at("value"));
}

void to_json(Json &json, const SelectedValue &value)
{
    Json selectors = Json::array();
    for (const SelectedValue::Selector &selector : value.selectors)
        selectors.push_back({{"name", selector.name}, {"value", toJson(selector.value)}});
    json = {{"selectors", std::move(selectors)}, {"name", value.name}, {"value", toJson(value.value)}};
}

void from_json(const Json &json, SelectedValue &value)
{
    for (const Json &selector : json.at("selectors"))
        value.selectors.push_back({selector.at("name"), toNodeValue(selector.at("value"))});
    json.at("name").get_to(value.name);
    value.value = toNodeValue(json.at("value"));
}

void to_json(Json &json, const NodeValueReply &value)
{
    json = {{"value", toJson(value.value)}};
    if (!value.remembered.empty())
        json["remembered"] = value.remembered;
}

void from_json(const Json &json, NodeValueReply &value)
{
    value.value = toNodeValue(json.at("value"));
    if (json.contains("remembered"))
        json.at("remembered").get_to(value.remembered);
}

void to_json(Json &json, const ChunkFeature &value)
{
    json = {{"name", value.name}, {"type", static_cast<int>(value.type)}, {"chunkId", value.chunkId},
        {"address", value.address}, {"length", value.length}, {"isBigEndian", value.isBigEndian},
        {"isSigned", value.isSigned}, {"lowestBit", value.lowestBit}, {"highestBit", value.highestBit},
        {"entries", value.entries}};
}

void from_json(const Json &json, ChunkFeature &value)
{
    json.at("name").get_to(value.name);
    value.type = toEnumeration(json.at("type"), CvxCPP::NodeType::Register);
    json.at("chunkId").get_to(value.chunkId);
    json.at("address").get_to(value.address);
    json.at("length").get_to(value.length);
    json.at("isBigEndian").get_to(value.isBigEndian);
    json.at("isSigned").get_to(value.isSigned);
    json.at("lowestBit").get_to(value.lowestBit);
    json.at("highestBit").get_to(value.highestBit);
    json.at("entries").get_to(value.entries);
}
