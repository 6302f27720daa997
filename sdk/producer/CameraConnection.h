#pragma once

#include "sdk/producer/DeviceSource.h"
#include "sdk/producer/LossNotifier.h"
#include "sdk/producer/Port.h"

#include <memory>
#include <mutex>

/// An opened camera, with what it told when it was opened. The device module, its stream and its port share
/// it; the camera is closed when the last call that uses it has ended.
class CameraConnection
{
public:
    /// Opens the camera. Throws what DeviceSource::openCamera() throws.
    CameraConnection(std::shared_ptr<DeviceSource> source, const std::string &interfaceId,
        const DeviceRecord &record, GenTL::DEVICE_ACCESS_FLAGS access);

    const DeviceRecord &record() const { return m_record; }
    GenTL::DEVICE_ACCESS_STATUS accessStatus() const { return m_camera->accessStatus(); }
    std::uint64_t timestampFrequency() const { return m_timestampFrequency; }
    const std::vector<PortUrl> &descriptionUrls() const { return m_urls; }
    bool isBigEndian() const { return m_isBigEndian; }
    bool isReadOnly() const { return m_isReadOnly; }

    /// Returns null if the camera has no stream.
    ImageSource *images() const { return m_images; }
    LossNotifier &loss() const { return *m_loss; }

    /// Reads or writes registers, one access at a time. Throws GenTlError.
    void read(std::uint64_t address, void *data, std::size_t size);
    void write(std::uint64_t address, const void *data, std::size_t size);

private:
    const std::shared_ptr<DeviceSource> m_source; // Must exist as long as the camera.
    const DeviceRecord m_record;
    const bool m_isReadOnly;
    const std::shared_ptr<LossNotifier> m_loss = std::make_shared<LossNotifier>();
    const std::unique_ptr<OpenCamera> m_camera;
    std::uint64_t m_timestampFrequency = 0;
    std::vector<PortUrl> m_urls;
    bool m_isBigEndian = false;
    ImageSource *m_images = nullptr;
    std::mutex m_accessMutex; // Held during an access.
};
