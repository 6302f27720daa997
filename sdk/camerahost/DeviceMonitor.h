#pragma once

#include "sdk/camerahost/CameraStream.h"
#include "sdk/camerahost/LossDetector.h"
#include "sdk/camerahost/OpenedDevice.h"
#include "sdk/camerahost/ProducerPort.h"

#include <optional>
#include <string>
#include <vector>

/// Notices that an opened camera is gone: by events of the producer, by the state of the stream, and by
/// reading a register now and then while no images arrive.
class DeviceMonitor
{
public:
    using TimePoint = LossDetector::TimePoint;

    DeviceMonitor(const OpenedDevice &device, ProducerPort &port, NodeMap &nodes)
        : m_device(device), m_port(port), m_nodes(nodes)
    { }

    /// Registers the events, and notes whether this process may write. Accesses no register.
    void registerEvents();

    /// Finds out by which register the camera can be checked, and begins to check it.
    void start(TimePoint now);

    /// Checks what is due. Returns a text for people if the camera is lost.
    std::optional<std::string> tick(TimePoint now, CameraStream &stream);

private:
    void registerEvents(GenTL::EVENTSRC_HANDLE source);
    bool takeEvents();
    bool hasFailed();
    bool readSomething();
    bool hasLostAccess() const;
    bool isWritable() const;

    const OpenedDevice &m_device;
    ProducerPort &m_port;
    NodeMap &m_nodes;
    LossDetector m_detector;
    std::vector<GenTL::EVENT_HANDLE> m_events;
    std::string m_feature; // Is read to check the camera; empty if m_hasStartRegister decides.
    bool m_hasStartRegister = false; // The register at address 0 can be read.
    bool m_wasWritable = false;
    std::uint64_t m_delivered = 0; // By the stream at the last tick.
};
