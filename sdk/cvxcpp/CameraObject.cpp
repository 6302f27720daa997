#include "sdk/cvxcpp/CameraObject.h"

#include "sdk/cvxcpp/ApiBoundary.h"
#include "sdk/cvxcpp/TextValue.h"
#include "sdk/cvxcpp/TransportLayerName.h"

#include <utility>

using namespace CvxCPP;

CameraObject::CameraObject(std::shared_ptr<InterfaceObject> interface,
    std::shared_ptr<const InterfaceRecord> record, std::size_t device)
    : m_interface(std::move(interface)), m_record(std::move(record)), m_device(device)
{ }

CvxError CameraObject::GetID(char *buffer, unsigned &size, bool extended) const
{
    if (!extended)
        return readString(id(), buffer, size);
    return guarded([&] {
        return readString(m_interface->producerName() + '/' + interfaceId() + '/' + id(), buffer, size);
    });
}

CvxError CameraObject::GetModel(char *buffer, unsigned &size) const
{
    return readString(device().model, buffer, size);
}

CvxError CameraObject::GetName(char *buffer, unsigned &size) const
{
    return readString(device().name, buffer, size);
}

CvxError CameraObject::GetSerialNumber(char *buffer, unsigned &size) const
{
    return readString(device().serial, buffer, size);
}

CvxError CameraObject::GetUserName(char *buffer, unsigned &size) const
{
    return readString(device().userName, buffer, size);
}

CvxError CameraObject::GetInterfaceType(CvxTransportLayerType &type) const
{
    if (!m_interface->isRunning())
        return CvxErrorNotStarted;
    return guarded([&] {
        type = transportLayerType(device().type);
        if (type == CvxTransportLayerUnknown)
            type = transportLayerType(m_record->type);
        return CvxErrorSuccess;
    });
}

CvxError CameraObject::GetInterface(std::shared_ptr<Interface> &iface) const
{
    if (!m_interface->isRunning())
        return CvxErrorNotStarted;
    iface = m_interface;
    return CvxErrorSuccess;
}

CvxResult CameraObject::Open(CvxAccess access, std::shared_ptr<Device> &opened)
{
    return m_interface->openDevice(device(), access, opened);
}

CvxError CameraObject::readString(const std::string &value, char *buffer, unsigned &size) const
{
    return m_interface->isRunning() ? copyText(value, buffer, size) : CvxErrorNotStarted;
}
