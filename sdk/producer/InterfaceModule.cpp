#include "sdk/producer/InterfaceModule.h"

#include "sdk/producer/LastError.h"

#include <utility>

using namespace GenTL;

namespace {

GC_ERROR answerDeviceInfo(const DeviceRecord &record, DEVICE_INFO_CMD command, const Answer &answer)
{
    switch (command) {
    case DEVICE_INFO_ID:
        return answer.text(record.id);
    case DEVICE_INFO_VENDOR:
        return answer.text(record.vendor);
    case DEVICE_INFO_MODEL:
        return answer.text(record.model);
    case DEVICE_INFO_TLTYPE:
        return answer.text(record.tlType);
    case DEVICE_INFO_DISPLAYNAME:
        return answer.text(record.displayName);
    case DEVICE_INFO_ACCESS_STATUS:
        return answer.int32(record.accessStatus);
    case DEVICE_INFO_USER_DEFINED_NAME:
        return answer.text(record.userName);
    case DEVICE_INFO_SERIAL_NUMBER:
        return answer.text(record.serial);
    case DEVICE_INFO_VERSION:
    case DEVICE_INFO_TIMESTAMP_FREQUENCY:
        return fail(GC_ERR_NOT_AVAILABLE, "This is known of an open device only.");
    default:
        return failUnknownCommand(command);
    }
}

} // namespace

InterfaceModule::InterfaceModule(std::shared_ptr<DeviceSource> source, InterfaceRecord record)
    : m_source(std::move(source)), m_record(std::move(record))
{ }

GC_ERROR InterfaceModule::updateDeviceList(bool8_t *changed)
{
    const std::lock_guard lock(m_mutex);
    Snapshot<DeviceRecord> found(m_source->updateDevices(m_record.id));
    if (changed)
        *changed = found != m_devices;
    m_devices = std::move(found);
    m_updated = true;
    return GC_ERR_SUCCESS;
}

GC_ERROR InterfaceModule::countDevices(std::uint32_t *count) const
{
    if (!count)
        return failArgumentMissing();
    const std::lock_guard lock(m_mutex);
    if (!m_updated)
        return failNeverUpdated();
    *count = m_devices.count();
    return GC_ERR_SUCCESS;
}

GC_ERROR InterfaceModule::deviceId(std::uint32_t index, const Answer &answer) const
{
    if (!answer.isComplete())
        return failArgumentMissing();
    const std::lock_guard lock(m_mutex);
    if (!m_updated)
        return failNeverUpdated();
    const DeviceRecord *const device = m_devices.at(index);
    return device ? answer.text(device->id) : failIndex(index, m_devices.count());
}

GC_ERROR InterfaceModule::deviceInfo(
    const std::string &id, DEVICE_INFO_CMD command, const Answer &answer) const
{
    if (!answer.isComplete())
        return failArgumentMissing();
    const std::lock_guard lock(m_mutex);
    const DeviceRecord *const device = m_devices.find(id);
    return device ? answerDeviceInfo(*device, command, answer) : failUnknownId(id);
}
