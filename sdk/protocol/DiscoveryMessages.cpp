#include "sdk/protocol/DiscoveryMessages.h"

#include "sdk/protocol/JsonConversions.h"

CORVIX_JSON_CONVERSIONS(ListCamerasRequest, updatesInterfaces)
CORVIX_JSON_CONVERSIONS(ListInterfaceRequest, number)
CORVIX_JSON_CONVERSIONS(CameraListReply, interfaces, problems)
CORVIX_JSON_CONVERSIONS(ProducerFailedReply, problem)
CORVIX_JSON_CONVERSIONS(ProducerClosedReply, problems)

void to_json(nlohmann::json &json, const CloseProducerRequest &)
{
    json = nlohmann::json::object();
}

void from_json(const nlohmann::json &, CloseProducerRequest &) { }
