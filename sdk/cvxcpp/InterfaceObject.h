#pragma once

#include "CvxCPP/CvxCPP.h"
#include "sdk/cvxcpp/InterfaceFeature.h"
#include "sdk/cvxcpp/InterfaceSource.h"

#include <array>
#include <cstddef>
#include <memory>
#include <mutex>
#include <string>

/// The API object for one interface. The devices are a snapshot, like the device list of a GenTL interface:
/// only "DeviceUpdateList" replaces them, so an index refers to the same device until the next
/// "DeviceUpdateList".
class InterfaceObject final : public CvxCPP::Interface, public std::enable_shared_from_this<InterfaceObject>
{
public:
    /// The object that `source` points to must still exist.
    InterfaceObject(std::weak_ptr<InterfaceSource> source, std::size_t producer,
        std::shared_ptr<const std::string> producerName, std::shared_ptr<const InterfaceRecord> record);

    CvxCPP::CvxError GetFeatureByName(const char *name, std::shared_ptr<CvxCPP::Feature> &feature) override;

    const std::string &id() const { return m_id; }
    const std::string &producerName() const { return *m_producerName; }
    bool isRunning() const { return *m_isRunning; }

    // These functions implement the features.
    CvxCPP::CvxError updateDeviceList();
    CvxCPP::CvxError selectorRange(long &min, long &max) const;
    CvxCPP::CvxError select(long index);
    CvxCPP::CvxError selectedField(std::string DeviceRecord::*field, char *buffer, unsigned &size) const;

    /// Opens a device of this interface for CvxCPP::Camera::Open().
    CvxCPP::CvxResult openDevice(
        const DeviceRecord &device, CvxCPP::CvxAccess access, std::shared_ptr<CvxCPP::Device> &opened);

private:
    const std::weak_ptr<InterfaceSource> m_source;
    const InterfaceSource::RunningFlag m_isRunning;
    const std::size_t m_producer;
    const std::shared_ptr<const std::string> m_producerName;
    const std::string m_id;
    std::array<InterfaceFeature, 4> m_features;

    mutable std::mutex m_mutex; // Guards the members below.
    std::shared_ptr<const InterfaceRecord> m_record; // Never null.
    std::size_t m_selected = 0; // Has no meaning while there is no device.
};
