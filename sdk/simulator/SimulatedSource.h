#pragma once

#include "sdk/producer/DeviceSource.h"
#include "sdk/simulator/ConfigurationFile.h"

/// Reports the interfaces and devices of the configuration file. Every update reads the file again if the
/// file has changed.
class SimulatedSource final : public DeviceSource
{
public:
    explicit SimulatedSource(std::filesystem::path configurationFile);

    ProducerIdentity identity() const override;
    std::vector<InterfaceRecord> updateInterfaces() override;
    std::vector<DeviceRecord> updateDevices(
        const std::string &interfaceId, std::chrono::milliseconds timeout) override;

private:
    ConfigurationFile m_file;
};
