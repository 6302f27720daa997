#include "sdk/simulator/SimulatedSource.h"

#include <algorithm>
#include <utility>

SimulatedSource::SimulatedSource(std::filesystem::path configurationFile)
    : m_file(std::move(configurationFile))
{ }

ProducerIdentity SimulatedSource::identity() const
{
    return {"CorvixCameraSimulator", "Orvelle", "Camera Simulator", CORVIX_PRODUCER_VERSION,
        GenTL::TLTypeMixedName, "Corvix Camera Simulator"};
}

std::vector<InterfaceRecord> SimulatedSource::updateInterfaces()
{
    const auto configuration = m_file.current();
    std::vector<InterfaceRecord> interfaces;
    for (const SimulatedInterface &interface : *configuration)
        interfaces.push_back(interface.record);
    return interfaces;
}

std::vector<DeviceRecord> SimulatedSource::updateDevices(
    const std::string &interfaceId, std::chrono::milliseconds)
{
    const auto configuration = m_file.current();
    const auto found = std::find_if(configuration->begin(), configuration->end(),
        [&](const SimulatedInterface &interface) { return interface.record.id == interfaceId; });
    return found != configuration->end() ? found->devices : std::vector<DeviceRecord>{};
}

std::unique_ptr<DeviceSource> createDeviceSource(const std::filesystem::path &producerFile)
{
    return std::make_unique<SimulatedSource>(producerFile.parent_path() / "CorvixCameraSimulator.json");
}
