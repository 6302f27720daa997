#pragma once

#include "sdk/producer/Answer.h"
#include "sdk/producer/DeviceSource.h"
#include "sdk/producer/UpdatedList.h"

#include <memory>
#include <string>

/// An open interface: the list of its devices as of the last update. Each has a lock of its own, so that
/// interfaces can be searched side by side.
class InterfaceModule
{
public:
    InterfaceModule(std::shared_ptr<DeviceSource> source, InterfaceRecord record);

    /// The interface as it was when it was opened.
    const InterfaceRecord &record() const { return m_record; }

    GenTL::GC_ERROR updateDeviceList(GenTL::bool8_t *changed);
    GenTL::GC_ERROR countDevices(std::uint32_t *count) const;
    GenTL::GC_ERROR deviceId(std::uint32_t index, const Answer &answer) const;
    GenTL::GC_ERROR deviceInfo(
        const std::string &id, GenTL::DEVICE_INFO_CMD command, const Answer &answer) const;

private:
    const std::shared_ptr<DeviceSource> m_source;
    const InterfaceRecord m_record;
    UpdatedList<DeviceRecord> m_devices;
};
