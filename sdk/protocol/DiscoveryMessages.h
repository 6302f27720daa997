#pragma once

#include "sdk/protocol/CameraRecords.h"
#include "sdk/protocol/Problem.h"

#include <cstdint>
#include <nlohmann/json_fwd.hpp>
#include <vector>

// The messages between the library and a producer host. A new message is a struct with a `kind` and its
// conversions, here, plus one handler on each side.

/// Searches all interfaces. Answered by CameraListReply.
struct ListCamerasRequest
{
    static constexpr const char *kind = "listCameras";
    bool updatesInterfaces = false; ///< Also asks the producer for new and removed interfaces.
};
void to_json(nlohmann::json &json, const ListCamerasRequest &value);
void from_json(const nlohmann::json &json, ListCamerasRequest &value);

/// Searches one interface. Answered by a CameraListReply with that interface, or without any if it is gone.
struct ListInterfaceRequest
{
    static constexpr const char *kind = "listInterface";
    std::uint64_t number = 0; ///< InterfaceRecord::number.
};
void to_json(nlohmann::json &json, const ListInterfaceRequest &value);
void from_json(const nlohmann::json &json, ListInterfaceRequest &value);

/// Closes the producer and ends the host. Answered by ProducerClosedReply.
struct CloseProducerRequest
{
    static constexpr const char *kind = "closeProducer";
};
void to_json(nlohmann::json &json, const CloseProducerRequest &value);
void from_json(const nlohmann::json &json, CloseProducerRequest &value);

/// The interfaces with their devices, sorted by ID, and every call that failed during the search.
struct CameraListReply
{
    static constexpr const char *kind = "cameraList";
    std::vector<InterfaceRecord> interfaces;
    std::vector<Problem> problems;
};
void to_json(nlohmann::json &json, const CameraListReply &value);
void from_json(const nlohmann::json &json, CameraListReply &value);

/// The producer cannot be used; the host exits after this message. A failure in a thread of the producer is
/// sent without a request; so is a failure to load or open the producer.
struct ProducerFailedReply
{
    static constexpr const char *kind = "producerFailed";
    Problem problem;
};
void to_json(nlohmann::json &json, const ProducerFailedReply &value);
void from_json(const nlohmann::json &json, ProducerFailedReply &value);

/// The producer is closed; the host exits after this message.
struct ProducerClosedReply
{
    static constexpr const char *kind = "producerClosed";
    std::vector<Problem> problems;
};
void to_json(nlohmann::json &json, const ProducerClosedReply &value);
void from_json(const nlohmann::json &json, ProducerClosedReply &value);
