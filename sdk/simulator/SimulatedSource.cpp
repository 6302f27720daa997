#include "sdk/simulator/SimulatedSource.h"

#include "sdk/simulator/CameraFile.h"
#include "sdk/simulator/CameraModel.h"
#include "sdk/simulator/SimulatedCamera.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace {

const SimulatedInterface *findInterface(const SimulatorConfiguration &configuration, const std::string &id)
{
    const auto found = std::find_if(configuration.begin(), configuration.end(),
        [&id](const SimulatedInterface &interface) { return interface.record.id == id; });
    return found != configuration.end() ? &*found : nullptr;
}

/// Returns the model of a camera, or nothing if the configuration does not contain the camera.
std::optional<CameraModel> findModel(
    const SimulatorConfiguration &configuration, const std::string &interfaceId, const std::string &deviceId)
{
    const SimulatedInterface *const interface = findInterface(configuration, interfaceId);
    if (!interface)
        return std::nullopt;
    const std::vector<DeviceRecord> &devices = interface->devices;
    const auto device = std::find_if(devices.begin(), devices.end(),
        [&deviceId](const DeviceRecord &record) { return record.id == deviceId; });
    if (device == devices.end())
        return std::nullopt;
    const auto keys = interface->sensors.find(deviceId);
    return cameraModel(*device, keys != interface->sensors.end() ? keys->second : SensorKeys{});
}

} // namespace

SimulatedSource::SimulatedSource(std::filesystem::path configurationFile)
    : m_file(std::make_shared<ConfigurationFile>(std::move(configurationFile)))
{ }

ProducerIdentity SimulatedSource::identity() const
{
    return {"CorvixCameraSimulator", "Orvelle", "Camera Simulator", CORVIX_PRODUCER_VERSION,
        GenTL::TLTypeMixedName, "Corvix Camera Simulator"};
}

std::vector<InterfaceRecord> SimulatedSource::updateInterfaces()
{
    const auto configuration = m_file->current();
    std::vector<InterfaceRecord> interfaces;
    for (const SimulatedInterface &interface : *configuration)
        interfaces.push_back(interface.record);
    return interfaces;
}

std::vector<DeviceRecord> SimulatedSource::updateDevices(
    const std::string &interfaceId, std::chrono::milliseconds)
{
    const auto configuration = m_file->current();
    const SimulatedInterface *const interface = findInterface(*configuration, interfaceId);
    return interface ? interface->devices : std::vector<DeviceRecord>{};
}

std::unique_ptr<OpenCamera> SimulatedSource::openCamera(
    const std::string &interfaceId, const std::string &deviceId, GenTL::DEVICE_ACCESS_FLAGS access)
{
    const std::optional<CameraModel> model = findModel(*m_file->current(), interfaceId, deviceId);
    if (!model)
        throw GenTlError(GenTL::GC_ERR_INVALID_ID, "The camera is not connected any more");
    return std::make_unique<SimulatedCamera>(
        cameraFilePath(interfaceId, deviceId), access, *model, [file = m_file, interfaceId, deviceId] {
            return findModel(*file->current(), interfaceId, deviceId).has_value();
        });
}

std::unique_ptr<DeviceSource> createDeviceSource(const std::filesystem::path &producerFile)
{
    return std::make_unique<SimulatedSource>(producerFile.parent_path() / "CorvixCameraSimulator.json");
}
