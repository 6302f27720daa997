#pragma once

#include "sdk/protocol/CameraRecords.h"
#include "sdk/protocol/Problem.h"

#include <cstdint>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <vector>

// This file defines the messages between the library and a producer host. To add a message, define a struct
// with a `kind` and its JSON conversions in this file, and write one handler on each side.

/// Asks the host to search all interfaces. The host replies with a CameraListReply.
struct ListCamerasRequest
{
    static constexpr const char *kind = "listCameras";
    bool updatesInterfaces = false; ///< If true, the host first updates the list of interfaces.
    std::uint32_t timeout = 0; ///< Milliseconds that each interface has for its search.
};
void to_json(nlohmann::json &json, const ListCamerasRequest &value);
void from_json(const nlohmann::json &json, ListCamerasRequest &value);

/// Asks the host to search one interface. The host replies with a CameraListReply that contains only this
/// interface, or no interface if it no longer exists.
struct ListInterfaceRequest
{
    static constexpr const char *kind = "listInterface";
    std::uint64_t number = 0; ///< InterfaceRecord::number.
    std::uint32_t timeout = 0; ///< Milliseconds that the interface has for its search.
};
void to_json(nlohmann::json &json, const ListInterfaceRequest &value);
void from_json(const nlohmann::json &json, ListInterfaceRequest &value);

/// Asks the host to describe its producer. The host replies with a ProducerInfoReply.
struct ProducerInfoRequest
{
    static constexpr const char *kind = "producerInfo";
};
void to_json(nlohmann::json &json, const ProducerInfoRequest &value);
void from_json(const nlohmann::json &json, ProducerInfoRequest &value);

/// Asks the host to close the producer and to exit. The host replies with a ProducerClosedReply.
struct CloseProducerRequest
{
    static constexpr const char *kind = "closeProducer";
};
void to_json(nlohmann::json &json, const CloseProducerRequest &value);
void from_json(const nlohmann::json &json, CloseProducerRequest &value);

/// Contains the interfaces, sorted by ID, with their devices, and the calls that failed during the search.
struct CameraListReply
{
    static constexpr const char *kind = "cameraList";
    std::vector<InterfaceRecord> interfaces;
    std::vector<Problem> problems;
    std::uint32_t processorTime = 0; ///< Milliseconds of processor time that the host used for the search.
    /// True if the producer searches by itself and keeps a device until the device is gone, so that a device
    /// that the list lacks does not exist. The host reports every change with a ListChangedNotice.
    bool isSelfUpdating = false;
};
void to_json(nlohmann::json &json, const CameraListReply &value);
void from_json(const nlohmann::json &json, CameraListReply &value);

/// Describes a producer. Every string may be empty.
struct ProducerInfoReply
{
    static constexpr const char *kind = "producerInfoReply";
    std::string vendor;
    std::string model;
    std::string version;
    std::uint32_t genTlMajor = 0; ///< Both numbers are 0 if the producer does not report them.
    std::uint32_t genTlMinor = 0;
    std::vector<std::string> missingFunctions; ///< The functions that are needed to stream images.
};
void to_json(nlohmann::json &json, const ProducerInfoReply &value);
void from_json(const nlohmann::json &json, ProducerInfoReply &value);

/// Reports that a producer that updates its lists by itself has a new list of interfaces or devices. The
/// host sends this message without a request and only between two requests.
struct ListChangedNotice
{
    static constexpr const char *kind = "listChanged";
};
void to_json(nlohmann::json &json, const ListChangedNotice &value);
void from_json(const nlohmann::json &json, ListChangedNotice &value);

/// Reports that the producer cannot be used; the host exits after this message. The host sends this message
/// without a request if the producer cannot be loaded or opened, or if a thread of the producer fails.
struct ProducerFailedReply
{
    static constexpr const char *kind = "producerFailed";
    Problem problem;
};
void to_json(nlohmann::json &json, const ProducerFailedReply &value);
void from_json(const nlohmann::json &json, ProducerFailedReply &value);

/// Reports that the producer is closed; the host exits after this message.
struct ProducerClosedReply
{
    static constexpr const char *kind = "producerClosed";
    std::vector<Problem> problems;
};
void to_json(nlohmann::json &json, const ProducerClosedReply &value);
void from_json(const nlohmann::json &json, ProducerClosedReply &value);
