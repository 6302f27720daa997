#pragma once

#include "sdk/protocol/CameraRecords.h"
#include "sdk/protocol/Problem.h"

#include <cstdint>
#include <nlohmann/json.hpp>
#include <vector>

// The messages between the library and a producer host. A new message is a struct with a `kind` and its
// conversions, here, plus one handler on each side.

/// Searches all interfaces. Answered by CameraListReply.
struct ListCamerasRequest
{
    static constexpr const char *kind = "listCameras";
    bool updatesInterfaces = false; ///< Also asks the producer for new and removed interfaces.
};
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(ListCamerasRequest, updatesInterfaces)

/// Searches one interface. Answered by a CameraListReply with that interface, or without any if it is gone.
struct ListInterfaceRequest
{
    static constexpr const char *kind = "listInterface";
    std::uint64_t number = 0; ///< InterfaceRecord::number.
};
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(ListInterfaceRequest, number)

/// Closes the producer and ends the host. Answered by ProducerClosedReply.
struct CloseProducerRequest
{
    static constexpr const char *kind = "closeProducer";
};
inline void to_json(nlohmann::json &json, const CloseProducerRequest &)
{
    json = nlohmann::json::object();
}
inline void from_json(const nlohmann::json &, CloseProducerRequest &) { }

/// The interfaces with their devices, sorted by ID, and every call that failed during the search.
struct CameraListReply
{
    static constexpr const char *kind = "cameraList";
    std::vector<InterfaceRecord> interfaces;
    std::vector<Problem> problems;
};
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(CameraListReply, interfaces, problems)

/// The producer cannot be used; the host exits after this message. A failure in a thread of the producer is
/// sent without a request; so is a failure to load or open the producer.
struct ProducerFailedReply
{
    static constexpr const char *kind = "producerFailed";
    Problem problem;
};
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(ProducerFailedReply, problem)

/// The producer is closed; the host exits after this message.
struct ProducerClosedReply
{
    static constexpr const char *kind = "producerClosed";
    std::vector<Problem> problems;
};
NLOHMANN_DEFINE_TYPE_NON_INTRUSIVE(ProducerClosedReply, problems)
