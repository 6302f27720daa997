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
    return m_devices.update([this] { return m_source->updateDevices(m_record.id); }, changed);
}

GC_ERROR InterfaceModule::countDevices(std::uint32_t *count) const
{
    return m_devices.count(count);
}

GC_ERROR InterfaceModule::deviceId(std::uint32_t index, const Answer &answer) const
{
    return m_devices.id(index, answer);
}

GC_ERROR InterfaceModule::deviceInfo(
    const std::string &id, DEVICE_INFO_CMD command, const Answer &answer) const
{
    return m_devices.info(id, command, answer, answerDeviceInfo);
}
