#include "sdk/cvxcpp/InterfaceObject.h"

#include "sdk/cvxcpp/ApiBoundary.h"
#include "sdk/cvxcpp/TextValue.h"
#include "sdk/device/CameraLabel.h"

#include <algorithm>
#include <string_view>
#include <utility>

using namespace CvxCPP;

InterfaceObject::InterfaceObject(std::weak_ptr<InterfaceSource> source, std::size_t producer,
    std::shared_ptr<const std::string> producerName, std::shared_ptr<const InterfaceRecord> record)
    : m_source(std::move(source)),
      m_isRunning(m_source.lock()->runningFlag()),
      m_producer(producer),
      m_producerName(std::move(producerName)),
      m_id(record->id),
      m_features{
          {{*this, InterfaceFeature::Kind::DeviceUpdateList}, {*this, InterfaceFeature::Kind::DeviceSelector},
              {*this, InterfaceFeature::Kind::DeviceID}, {*this, InterfaceFeature::Kind::DeviceVendorName}}},
      m_record(std::move(record))
{ }

CvxError InterfaceObject::GetFeatureByName(const char *name, std::shared_ptr<Feature> &feature)
{
    static constexpr std::string_view names[]
        = {"DeviceUpdateList", "DeviceSelector", "DeviceID", "DeviceVendorName"}; // Same order as m_features.
    if (!name)
        return CvxErrorInvalidParameter;
    if (!isRunning())
        return CvxErrorNotStarted;
    const auto found = std::find(std::begin(names), std::end(names), name);
    if (found == std::end(names))
        return CvxErrorNotFound;
    auto &foundFeature = m_features[static_cast<std::size_t>(found - std::begin(names))];
    // The aliasing pointer keeps the whole interface object alive.
    feature = std::shared_ptr<Feature>(shared_from_this(), &foundFeature);
    return CvxErrorSuccess;
}

CvxError InterfaceObject::updateDeviceList()
{
    const auto source = m_source.lock();
    if (!source)
        return CvxErrorNotStarted;
    return guarded([&] {
        auto [error, record] = source->searchInterface(m_producer, m_id);
        if (error != CvxErrorSuccess)
            return error;
        const std::lock_guard lock(m_mutex);
        m_record = std::move(record);
        if (m_selected >= m_record->devices.size())
            m_selected = m_record->devices.empty() ? 0 : m_record->devices.size() - 1;
        return error;
    });
}

CvxError InterfaceObject::selectorRange(long &min, long &max) const
{
    if (!isRunning())
        return CvxErrorNotStarted;
    const std::lock_guard lock(m_mutex);
    if (m_record->devices.empty())
        return CvxErrorNotAvailable;
    min = 0;
    max = static_cast<long>(m_record->devices.size()) - 1;
    return CvxErrorSuccess;
}

CvxError InterfaceObject::select(long index)
{
    if (!isRunning())
        return CvxErrorNotStarted;
    const std::lock_guard lock(m_mutex);
    if (m_record->devices.empty())
        return CvxErrorNotAvailable;
    if (index < 0 || static_cast<std::size_t>(index) >= m_record->devices.size())
        return CvxErrorInvalidParameter;
    m_selected = static_cast<std::size_t>(index);
    return CvxErrorSuccess;
}

CvxError InterfaceObject::selectedField(std::string DeviceRecord::*field, char *buffer, unsigned &size) const
{
    if (!isRunning())
        return CvxErrorNotStarted;
    const std::lock_guard lock(m_mutex);
    if (m_record->devices.empty())
        return CvxErrorNotAvailable;
    return copyText(m_record->devices[m_selected].*field, buffer, size);
}

CvxResult InterfaceObject::openDevice(
    const DeviceRecord &device, CvxAccess access, std::shared_ptr<Device> &opened)
{
    const auto source = m_source.lock();
    if (!source)
        return {CvxErrorNotStarted, cameraLabel(device) + ": The camera system does not run."};
    return source->openDevice(m_producer, m_id, device, access, opened);
}
