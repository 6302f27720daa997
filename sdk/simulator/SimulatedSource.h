#pragma once

#include "sdk/producer/DeviceSource.h"
#include "sdk/simulator/SceneFile.h"

/// The interfaces and devices of the scene file. Every update looks at the file anew.
class SimulatedSource final : public DeviceSource
{
public:
    explicit SimulatedSource(std::filesystem::path sceneFile);

    ProducerIdentity identity() const override;
    std::vector<InterfaceRecord> updateInterfaces() override;
    std::vector<DeviceRecord> updateDevices(const std::string &interfaceId) override;

private:
    SceneFile m_file;
};
