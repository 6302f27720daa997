#pragma once

#include "CvxCPP/Node.h"
#include "sdk/camerahost/RegisterPort.h"
#include "sdk/protocol/DeviceMessages.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

/// The features of one camera: its register description, evaluated over its registers. Use a node map on one
/// thread at a time. Every function may access registers and blocks until the producer has answered.
class NodeMap
{
public:
    using Failure = RequestFailedReply;

    virtual ~NodeMap() = default;

    /// Builds the node map of a description. Returns a failure whose text says what is wrong with the
    /// description. `port` must exist as long as the node map.
    static std::variant<std::unique_ptr<NodeMap>, Failure> create(
        RegisterPort &port, const std::string &description);

    /// Returns the nodes that are reachable from the category "Root", each after its category.
    virtual const std::vector<CvxCPP::NodeInfo> &nodes() const = 0;

    // The following functions fail with DeviceFailure::NotFound if nodes() does not contain the name.

    virtual std::variant<CvxCPP::NodeState, Failure> state(const std::string &name) = 0;
    virtual std::variant<CvxCPP::NodeValue, Failure> read(const std::string &name) = 0;

    /// Writes a value, or executes a command if there is no value.
    virtual std::optional<Failure> write(const std::string &name, const CvxCPP::NodeValue &value) = 0;

    /// Returns the names of the nodes whose state may change when the node is written, without the node
    /// itself.
    virtual std::vector<std::string> dependents(const std::string &name) const = 0;

    // The host's own accesses. They ignore setWatching() and setStreaming(), and return nothing or false if
    // there is no such node or the access fails. The node need not be reachable from "Root".

    virtual std::optional<std::int64_t> readInteger(const std::string &name) = 0; ///< Also an entry's value.
    virtual bool writeInteger(const std::string &name, std::int64_t value) = 0;
    virtual bool execute(const std::string &name) = 0;

    /// Returns the features whose values are sent with the images.
    virtual std::vector<ChunkFeature> chunkFeatures() = 0;

    /// While `isWatching`, no node can be written.
    virtual void setWatching(bool isWatching) = 0;

    /// While `isStreaming`, nodes that "TLParamsLocked" locks report LockReason::StreamRunning.
    virtual void setStreaming(bool isStreaming) = 0;

protected:
    NodeMap() = default;
    NodeMap(const NodeMap &) = delete;
    NodeMap &operator=(const NodeMap &) = delete;
};
