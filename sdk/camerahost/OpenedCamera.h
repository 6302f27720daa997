#pragma once

#include "sdk/camerahost/CameraStream.h"
#include "sdk/camerahost/DeviceMonitor.h"
#include "sdk/camerahost/NodeMap.h"
#include "sdk/camerahost/OpenedDevice.h"
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
    bool m_isClosed = false;
};
