#pragma once

#include "CvxCPP/Node.h"
#include "sdk/protocol/Problem.h"

#include <cstdint>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <vector>

// This file defines the messages between the library and a camera host. The library sends one request at a
// time, and the host sends the reply that the request names, or a RequestFailedReply. Images do not travel in
// messages; see StreamRing.h.

/// Why a request failed. The library has one error code for each value.
enum class DeviceFailure : std::uint8_t
{
    Device, ///< The camera or the producer reports a failure.
    InUse,
    NotFound, ///< The camera or the node does not exist.
    NotAvailable,
    NotWritable,
    WrongType,
    OutOfRange,
    InvalidParameter,
    Lost, ///< The camera is gone; the host exits after this reply.
    NoMemory
};

/// Opens the camera. This is the first request. The host replies with a DeviceOpenedReply; if it fails, the
/// host exits after the RequestFailedReply.
struct OpenDeviceRequest
{
    static constexpr const char *kind = "openDevice";
    std::string interfaceId;
    std::string deviceId;
    std::uint32_t access = 0; ///< CvxCPP::CvxAccess.
};
void to_json(nlohmann::json &json, const OpenDeviceRequest &value);
void from_json(const nlohmann::json &json, OpenDeviceRequest &value);

struct DeviceOpenedReply
{
    static constexpr const char *kind = "deviceOpened";
    std::vector<CvxCPP::NodeInfo> nodes; ///< The nodes that Device::GetNodes() returns.
};
void to_json(nlohmann::json &json, const DeviceOpenedReply &value);
void from_json(const nlohmann::json &json, DeviceOpenedReply &value);

/// Reports that a request failed. The text names the feature and the reason, for people.
struct RequestFailedReply
{
    static constexpr const char *kind = "requestFailed";
    DeviceFailure failure = DeviceFailure::Device;
    std::string text;
};
void to_json(nlohmann::json &json, const RequestFailedReply &value);
void from_json(const nlohmann::json &json, RequestFailedReply &value);

/// Reads states. The host replies with a NodeStatesReply that contains one state for each name that exists,
/// in this order.
struct ReadStatesRequest
{
    static constexpr const char *kind = "readStates";
    std::vector<std::string> names;
};
void to_json(nlohmann::json &json, const ReadStatesRequest &value);
void from_json(const nlohmann::json &json, ReadStatesRequest &value);

struct NodeStatesReply
{
    static constexpr const char *kind = "nodeStates";
    std::vector<CvxCPP::NodeState> states;
};
void to_json(nlohmann::json &json, const NodeStatesReply &value);
void from_json(const nlohmann::json &json, NodeStatesReply &value);

/// Reads one value. The host replies with a NodeValueReply.
struct ReadValueRequest
{
    static constexpr const char *kind = "readValue";
    std::string name;
};
void to_json(nlohmann::json &json, const ReadValueRequest &value);
void from_json(const nlohmann::json &json, ReadValueRequest &value);

/// Writes one value. The host replies with a NodeValueReply without a value, then with a NodesChangedNotice.
struct WriteValueRequest
{
    static constexpr const char *kind = "writeValue";
    std::string name;
    CvxCPP::NodeValue value; ///< No value executes a command.
};
void to_json(nlohmann::json &json, const WriteValueRequest &value);
void from_json(const nlohmann::json &json, WriteValueRequest &value);

/// The value of a node for certain values of its selectors.
struct SelectedValue
{
    struct Selector
    {
        std::string name;
        CvxCPP::NodeValue value;

        bool operator==(const Selector &other) const { return name == other.name && value == other.value; }
    };

    std::vector<Selector> selectors; ///< Each after its own selectors.
    std::string name;
    CvxCPP::NodeValue value;
};
void to_json(nlohmann::json &json, const SelectedValue &value);
void from_json(const nlohmann::json &json, SelectedValue &value);

struct NodeValueReply
{
    static constexpr const char *kind = "nodeValue";
    CvxCPP::NodeValue value;
    /// During temporary changes: the value before the write, if the host has remembered it now. None or one.
    std::vector<SelectedValue> remembered = {};
};
void to_json(nlohmann::json &json, const NodeValueReply &value);
void from_json(const nlohmann::json &json, NodeValueReply &value);

/// Begins temporary changes; see Device::BeginTemporaryChanges(). The host replies with a
/// TemporaryChangesBegunReply, or fails with DeviceFailure::NotWritable if it only watches.
struct BeginTemporaryChangesRequest
{
    static constexpr const char *kind = "beginTemporaryChanges";
    std::vector<SelectedValue> remembered = {}; ///< Remembered before the camera was opened again.
    bool remembersWrites = true; ///< False if only `remembered` has to be put back at the end.
};
void to_json(nlohmann::json &json, const BeginTemporaryChangesRequest &value);
void from_json(const nlohmann::json &json, BeginTemporaryChangesRequest &value);

struct TemporaryChangesBegunReply
{
    static constexpr const char *kind = "temporaryChangesBegun";
};
void to_json(nlohmann::json &json, const TemporaryChangesBegunReply &value);
void from_json(const nlohmann::json &json, TemporaryChangesBegunReply &value);

/// Ends temporary changes. The host replies with a TemporaryChangesEndedReply, then with NodesChangedNotices.
struct EndTemporaryChangesRequest
{
    static constexpr const char *kind = "endTemporaryChanges";
    bool putsBack = true;
};
void to_json(nlohmann::json &json, const EndTemporaryChangesRequest &value);
void from_json(const nlohmann::json &json, EndTemporaryChangesRequest &value);

struct TemporaryChangesEndedReply
{
    static constexpr const char *kind = "temporaryChangesEnded";
    std::vector<SelectedValue> refused; ///< Values that could not be put back; they stay remembered.
    std::vector<std::string> reasons; ///< One sentence for each of them.
};
void to_json(nlohmann::json &json, const TemporaryChangesEndedReply &value);
void from_json(const nlohmann::json &json, TemporaryChangesEndedReply &value);

/// Prepares a stream: opens the data stream, locks the features that must not change, and determines the size
/// of the buffers. The host replies with a StreamPreparedReply.
struct PrepareStreamRequest
{
    static constexpr const char *kind = "prepareStream";
    std::uint32_t buffers = 0; ///< The number that the program wants.
};
void to_json(nlohmann::json &json, const PrepareStreamRequest &value);
void from_json(const nlohmann::json &json, PrepareStreamRequest &value);

/// A feature whose value is sent with every image, and where its value is in the chunk.
struct ChunkFeature
{
    std::string name;
    CvxCPP::NodeType type = CvxCPP::NodeType::Integer; ///< Integer, Float, Boolean, Enumeration or String.
    std::uint64_t chunkId = 0;
    std::uint64_t address = 0; ///< Offset in the data of the chunk.
    std::uint32_t length = 0; ///< Bytes.
    bool isBigEndian = false;
    bool isSigned = false;
    std::uint32_t lowestBit = 0; ///< An integer consists of these bits of the number, both inclusive.
    std::uint32_t highestBit = 63;
    std::vector<CvxCPP::EnumerationEntry> entries; ///< For an enumeration.
};

void to_json(nlohmann::json &json, const ChunkFeature &value);
void from_json(const nlohmann::json &json, ChunkFeature &value);

struct StreamPreparedReply
{
    static constexpr const char *kind = "streamPrepared";
    std::uint32_t buffers = 0; ///< The number to use, which may be larger than the requested one.
    std::uint64_t bufferSize = 0; ///< Bytes of one buffer, a multiple of `alignment`.
    std::uint32_t alignment = 64; ///< Alignment of each buffer in bytes.
    std::vector<ChunkFeature> chunkFeatures; ///< Empty if the camera sends no chunks.
};
void to_json(nlohmann::json &json, const StreamPreparedReply &value);
void from_json(const nlohmann::json &json, StreamPreparedReply &value);

/// Starts the prepared stream. Two descriptors come with the message: the memory of the buffers and that of
/// the StreamRing. The host replies with a StreamStartedReply.
struct StartStreamRequest
{
    static constexpr const char *kind = "startStream";
    std::uint32_t buffers = 0;
    std::uint64_t bufferSize = 0; ///< Buffer n starts at n * bufferSize in the memory of the buffers.
    bool onlyNewest = false; ///< CvxCPP::StreamPolicy::NewestImage.
};
void to_json(nlohmann::json &json, const StartStreamRequest &value);
void from_json(const nlohmann::json &json, StartStreamRequest &value);

struct StreamStartedReply
{
    static constexpr const char *kind = "streamStarted";
};
void to_json(nlohmann::json &json, const StreamStartedReply &value);
void from_json(const nlohmann::json &json, StreamStartedReply &value);

/// Stops the stream or undoes its preparation. The host replies with a StreamStoppedReply, also if there is
/// no stream.
struct StopStreamRequest
{
    static constexpr const char *kind = "stopStream";
};
void to_json(nlohmann::json &json, const StopStreamRequest &value);
void from_json(const nlohmann::json &json, StopStreamRequest &value);

struct StreamStoppedReply
{
    static constexpr const char *kind = "streamStopped";
};
void to_json(nlohmann::json &json, const StreamStoppedReply &value);
void from_json(const nlohmann::json &json, StreamStoppedReply &value);

/// Closes the camera. The host replies with a DeviceClosedReply and exits.
struct CloseDeviceRequest
{
    static constexpr const char *kind = "closeDevice";
};
void to_json(nlohmann::json &json, const CloseDeviceRequest &value);
void from_json(const nlohmann::json &json, CloseDeviceRequest &value);

struct DeviceClosedReply
{
    static constexpr const char *kind = "deviceClosed";
};
void to_json(nlohmann::json &json, const DeviceClosedReply &value);
void from_json(const nlohmann::json &json, DeviceClosedReply &value);

/// Reports nodes whose state may have changed. Sent without a request.
struct NodesChangedNotice
{
    static constexpr const char *kind = "nodesChanged";
    std::vector<std::string> names;
};
void to_json(nlohmann::json &json, const NodesChangedNotice &value);
void from_json(const nlohmann::json &json, NodesChangedNotice &value);

/// Reports that the camera is gone. Sent without a request; the host then ends, or waits until it is closed.
struct DeviceLostNotice
{
    static constexpr const char *kind = "deviceLost";
    std::string reason;
};
void to_json(nlohmann::json &json, const DeviceLostNotice &value);
void from_json(const nlohmann::json &json, DeviceLostNotice &value);
