#pragma once

#include "sdk/camerahost/CameraStream.h"
#include "sdk/camerahost/DeviceMonitor.h"
#include "sdk/camerahost/NodeMap.h"
#include "sdk/camerahost/OpenedDevice.h"
#include "sdk/camerahost/OriginalValues.h"
#include "sdk/camerahost/ProducerPort.h"

#include <atomic>
#include <chrono>
#include <memory>
#include <optional>
#include <string>

/// An opened camera with its features and its stream.
class OpenedCamera
{
public:
    using Failure = RequestFailedReply;
    using Milliseconds = std::chrono::milliseconds;

    OpenedCamera();

    /// Opens the camera. Returns the failure if this is not possible; only close() may be called afterwards.
    std::optional<Failure> open(const std::string &producerFile, const OpenDeviceRequest &request);

    /// Starts to check whether the camera answers. Call it once after open(). The first access to a feature
    /// may have to wait for the node map.
    void startMonitor();

    /// Returns the features. Before open(), there are none.
    NodeMap &nodes() { return *m_nodes; }

    /// Returns the stream, or null if the camera is not monitored yet.
    CameraStream *stream() { return m_stream; }

    /// Returns true if the camera is open and monitored.
    bool isOpen() const { return m_stream.load() != nullptr; }

    /// Checks what is due. Returns a text for people if the camera is lost, or has to be opened again because
    /// another program has changed the format of the images. The camera must be open.
    std::optional<std::string> tick(DeviceMonitor::TimePoint now);

    /// Writes a feature; see NodeMap::write(). During temporary changes, stores in `remembered` the value
    /// that the feature had before, if it is new.
    std::optional<Failure> write(
        const std::string &name, const CvxCPP::NodeValue &value, std::vector<SelectedValue> &remembered);

    /// Begins temporary changes. Returns the failure if the camera was opened only to watch it.
    std::optional<Failure> beginTemporaryChanges(const BeginTemporaryChangesRequest &request);

    /// Ends temporary changes, and puts the values back if `request` says so.
    OriginalValues::PutBack endTemporaryChanges(const EndTemporaryChangesRequest &request);

    /// Returns true if close() may have to put values back: a write that is running counts too.
    bool mayPutBack() const { return m_remembersWrites || !m_originals.isEmpty(); }

    /// Stops the stream and puts back what has to be, before close(). Gives up after `limit`; a call of the
    /// producer may then still hang, so only close() and abandon() may be called.
    void putBackWithin(Milliseconds limit, Milliseconds stopTimeout);

    /// Stops the stream and closes the camera. Each call of the producer gets `timeout`. No other function
    /// may be called afterwards, because a call may still hang.
    void close(Milliseconds timeout);

    /// Stops the stream and closes the device at once, while another thread may hang in a call of the
    /// producer, just before the end of the process. Any thread may call this function.
    void abandon();

private:
    std::optional<Failure> createNodes(const std::string &producerFile);
    std::optional<Failure> doWithoutNodes(const Failure &failure);

    OpenedDevice m_device;
    std::unique_ptr<ProducerPort> m_port;
    std::unique_ptr<NodeMap> m_nodes;
    std::unique_ptr<CameraStream> m_ownedStream;
    std::atomic<CameraStream *> m_stream{nullptr};
    std::optional<DeviceMonitor> m_monitor;
    OriginalValues m_originals;
    bool m_isWatching = true;
    bool m_remembersWrites = false; // During temporary changes.
    bool m_isStuck = false; // A call hangs that is not the stream's.
    bool m_isClosed = false;
};
