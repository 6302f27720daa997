#include "sdk/protocol/DiscoveryMessages.h"

#include "sdk/protocol/JsonConversions.h"

CORVIX_JSON_CONVERSIONS(ListCamerasRequest, updatesInterfaces, timeout)
CORVIX_JSON_CONVERSIONS(ListInterfaceRequest, number, timeout)
CORVIX_JSON_CONVERSIONS(CameraListReply, interfaces, problems, processorTime, isSelfUpdating)
CORVIX_JSON_CONVERSIONS(ProducerInfoReply, vendor, model, version, genTlMajor, genTlMinor, missingFunctions)
CORVIX_JSON_CONVERSIONS(ProducerFailedReply, problem)
CORVIX_JSON_CONVERSIONS(ProducerClosedReply, problems)

void to_json(nlohmann::json &json, const ProducerInfoRequest &)
{
    json = nlohmann::json::object();
}

void from_json(const nlohmann::json &, ProducerInfoRequest &) { }

void to_json(nlohmann::json &json, const CloseProducerRequest &)
{
    json = nlohmann::json::object();
}

void from_json(const nlohmann::json &, CloseProducerRequest &) { }

void to_json(nlohmann::json &json, const ListChangedNotice &)
{
    json = nlohmann::json::object();
}

void from_json(const nlohmann::json &, ListChangedNotice &) { }
