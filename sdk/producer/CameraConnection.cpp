#include "sdk/producer/CameraConnection.h"

#include <utility>

using namespace GenTL;

CameraConnection::CameraConnection(std::shared_ptr<DeviceSource> source, const std::string &interfaceId,
    const DeviceRecord &record, DEVICE_ACCESS_FLAGS access)
    : m_source(std::move(source)),
      m_record(record),
      m_isReadOnly(access == DEVICE_ACCESS_READONLY),
      m_camera(m_source->openCamera(interfaceId, record.id, access))
{
    m_camera->setLossHandler([loss = m_loss] { loss->cameraLost(); });
    m_timestampFrequency = m_camera->timestampFrequency();
    for (const std::string &url : m_camera->descriptionUrls())
        m_urls.push_back(PortUrl::parse(url));
    m_isBigEndian = m_camera->isBigEndian();
    m_images = m_camera->imageSource();
}

void CameraConnection::read(std::uint64_t address, void *data, std::size_t size)
{
    const std::lock_guard lock(m_accessMutex);
    m_camera->read(address, data, size);
}

void CameraConnection::write(std::uint64_t address, const void *data, std::size_t size)
{
    if (m_isReadOnly)
        throw GenTlError(GC_ERR_ACCESS_DENIED, "The camera was opened for reading only.");
    const std::lock_guard lock(m_accessMutex);
    m_camera->write(address, data, size);
}
