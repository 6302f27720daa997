#pragma once

#include "sdk/producer/DeviceSource.h"
#include "sdk/simulator/ConfigurationFile.h"

#include <memory>

/// Reports the interfaces and devices of the configuration file. Every update reads the file again if the
/// file has changed. An open camera is lost when it disappears from the file.
class SimulatedSource final : public DeviceSource
{
public:
    explicit SimulatedSource(std::filesystem::path configurationFile);

    ProducerIdentity identity() const override;
    std::vector<InterfaceRecord> updateInterfaces() override;
    std::vector<DeviceRecord> updateDevices(
        const std::string &interfaceId, std::chrono::milliseconds timeout) override;
    std::unique_ptr<OpenCamera> openCamera(const std::string &interfaceId, const std::string &deviceId,
        GenTL::DEVICE_ACCESS_FLAGS access) override;

private:
    const std::shared_ptr<ConfigurationFile> m_file; // Open cameras use the file too.
};
