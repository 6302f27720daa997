#include "sdk/producer/DeviceModule.h"

#include "sdk/producer/InfoCommands.h"
#include "sdk/producer/TechnologyNames.h"

#include <utility>

using namespace GenTL;

namespace {

constexpr char streamId[] = "Stream0";

} // namespace

DeviceModule::DeviceModule(
    const InterfaceModule &parent, const DeviceRecord &record, DEVICE_ACCESS_FLAGS access)
    : m_producerVersion(parent.system->identity.version),
      m_camera(std::make_shared<CameraConnection>(parent.system->source, parent.record().id, record, access)),
      m_port({record.id, record.vendor, record.model, record.tlType, deviceModuleName, m_producerVersion,
                 "DevicePort"},
          features())
{ }

GC_ERROR DeviceModule::info(DEVICE_INFO_CMD command, const InfoOutput &output) const
{
    switch (command) {
    case DEVICE_INFO_ACCESS_STATUS:
        return output.writeInt32(m_camera->accessStatus());
    case DEVICE_INFO_TIMESTAMP_FREQUENCY:
        return m_camera->timestampFrequency() > 0 ? output.writeUint64(m_camera->timestampFrequency())
                                                  : fail(GC_ERR_NOT_AVAILABLE, "The camera has no clock.");
    default:
        return writeDeviceInfo(m_camera->record(), command, output);
    }
}

std::vector<std::string> DeviceModule::streamIds() const
{
    return m_camera->images() ? std::vector<std::string>{streamId} : std::vector<std::string>{};
}

std::shared_ptr<RemotePort> DeviceModule::createRemotePort() const
{
    return std::make_shared<RemotePort>(m_camera);
}

std::shared_ptr<StreamModule> DeviceModule::createStream() const
{
    return std::make_shared<StreamModule>(m_camera, streamId, m_producerVersion);
}

std::shared_ptr<Event> DeviceModule::createEvent(EVENT_TYPE type)
{
    const bool isOffered = type == EVENT_ERROR || type == EVENT_MODULE;
    return isOffered ? m_camera->loss().createEvent(type) : nullptr;
}

std::vector<ModuleFeature> DeviceModule::features()
{
    using F = ModuleFeature;
    const std::string about = "DeviceInformation";
    const std::string list = "StreamEnumeration";
    const DeviceRecord &record = m_camera->record();
    return {
        F::text(about, "DeviceID", "ID of the device.", [&record] { return record.id; }),
        F::text(about, "DeviceVendorName", "Vendor of the device.", [&record] { return record.vendor; }),
        F::text(about, "DeviceModelName", "Model of the device.", [&record] { return record.model; }),
        F::choice(about, "DeviceType", "Transport layer technology of the device.", technologyNames(),
            [&record] { return technologyIndex(record.tlType); }),
        F::selector(
            list, "StreamSelector", "Selects a data stream.", [] { return 0; },
            [this](std::uint64_t index) {
                if (index >= streamIds().size())
                    throw GenTlError(GC_ERR_INVALID_VALUE, "There is no such data stream.");
            },
            "StreamCount"),
        F::text(
            list, "StreamID", "ID of the selected data stream.",
            [this] {
                return m_camera->images()
                    ? streamId
                    : throw GenTlError(GC_ERR_NOT_AVAILABLE, "The camera has no data stream.");
            },
            "StreamSelector"),
        F::number("", "StreamCount", "Number of data streams.", [this] { return streamIds().size(); }),
    };
}
