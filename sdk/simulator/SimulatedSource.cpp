#include "sdk/simulator/SimulatedSource.h"

#include <algorithm>
#include <utility>

SimulatedSource::SimulatedSource(std::filesystem::path sceneFile) : m_file(std::move(sceneFile)) { }

ProducerIdentity SimulatedSource::identity() const
{
    return {"CorvixCameraSimulator", "Orvelle", "Camera Simulator", CORVIX_PRODUCER_VERSION,
        GenTL::TLTypeMixedName, "Corvix Camera Simulator"};
}

std::vector<InterfaceRecord> SimulatedSource::updateInterfaces()
{
    const std::shared_ptr<const Scene> scene = m_file.current();
    std::vector<InterfaceRecord> interfaces;
    for (const SceneInterface &element : *scene)
        interfaces.push_back(element.record);
    return interfaces;
}

std::vector<DeviceRecord> SimulatedSource::updateDevices(const std::string &interfaceId)
{
    const std::shared_ptr<const Scene> scene = m_file.current();
    const auto element = std::find_if(scene->begin(), scene->end(),
        [&](const SceneInterface &candidate) { return candidate.record.id == interfaceId; });
    return element != scene->end() ? element->devices : std::vector<DeviceRecord>{};
}

std::unique_ptr<DeviceSource> createDeviceSource(const std::filesystem::path &producerFile)
{
    return std::make_unique<SimulatedSource>(producerFile.parent_path() / "CorvixCameraSimulator.json");
}
