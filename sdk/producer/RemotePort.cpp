#include "sdk/producer/RemotePort.h"

using namespace GenTL;

PortDescription RemotePort::description() const
{
    const DeviceRecord &record = m_camera->record();
    PortDescription description{record.id, record.vendor, record.model, record.tlType, remoteDeviceModuleName,
        record.version, "Device"};
    const bool isLost = m_camera->accessStatus() == DEVICE_ACCESS_STATUS_NOACCESS;
    description.isBigEndian = m_camera->isBigEndian();
    description.canRead = !isLost;
    description.canWrite = !isLost && !m_camera->isReadOnly();
    return description;
}
