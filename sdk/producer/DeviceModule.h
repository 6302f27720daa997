#pragma once

#include "sdk/producer/CameraConnection.h"
#include "sdk/producer/InterfaceModule.h"
#include "sdk/producer/RemotePort.h"
#include "sdk/producer/StreamModule.h"

/// An open device module, which a DEV_HANDLE identifies. The camera has no or one data stream.
class DeviceModule final : public Module
{
public:
    static constexpr const char *handleName = "an open device";

    /// Opens the camera. Throws what DeviceSource::openCamera() throws.
    DeviceModule(
        const InterfaceModule &parent, const DeviceRecord &record, GenTL::DEVICE_ACCESS_FLAGS access);

    /// Writes the value of an info command to a complete output. Returns what writeDeviceInfo() returns.
    GenTL::GC_ERROR info(GenTL::DEVICE_INFO_CMD command, const InfoOutput &output) const;

    /// Returns the IDs of the data streams.
    std::vector<std::string> streamIds() const;

    std::shared_ptr<RemotePort> createRemotePort() const;

    /// Returns a new module for the data stream. The camera must have one.
    std::shared_ptr<StreamModule> createStream() const;

    Port *port() override { return &m_port; }
    std::shared_ptr<Event> createEvent(GenTL::EVENT_TYPE type) override;

private:
    std::vector<ModuleFeature> features();

    const std::string m_producerVersion;
    const std::shared_ptr<CameraConnection> m_camera;
    ModulePort m_port;
};
