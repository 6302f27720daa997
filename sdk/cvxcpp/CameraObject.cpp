#include "sdk/cvxcpp/CameraObject.h"

#include "sdk/cvxcpp/TextValue.h"
#include "sdk/cvxcpp/TransportLayerName.h"

#include <exception>
#include <utility>

using namespace CvxCPP;

CameraObject::CameraObject(std::shared_ptr<InterfaceObject> interface,
    std::shared_ptr<const ListedInterface> record, std::size_t device)
    : m_interface(std::move(interface)), m_record(std::move(record)), m_device(device)
{ }

CvxError CameraObject::GetID(char *buffer, unsigned &size, bool extended) const
{
    if (!extended)
        return readText(id(), buffer, size);
    try {
        return readText(m_interface->producerName() + '/' + interfaceId() + '/' + id(), buffer, size);
    } catch (const std::exception &) { // Out of memory.
        return CvxErrorFailed;
    }
}

CvxError CameraObject::GetModel(char *buffer, unsigned &size) const
{
    return readText(device().model, buffer, size);
}

CvxError CameraObject::GetName(char *buffer, unsigned &size) const
{
    return readText(device().name, buffer, size);
}

CvxError CameraObject::GetSerialNumber(char *buffer, unsigned &size) const
{
    return readText(device().serial, buffer, size);
}

CvxError CameraObject::GetInterfaceType(CvxTransportLayerType &type) const
{
    if (!m_interface->isRunning())
        return CvxErrorNotStarted;
    try {
        type = transportLayerType(device().type);
        if (type == CvxTransportLayerUnknown)
            type = transportLayerType(m_record->type);
    } catch (const std::exception &) { // Out of memory.
        return CvxErrorFailed;
    }
    return CvxErrorSuccess;
}

CvxError CameraObject::GetInterface(std::shared_ptr<Interface> &iface) const
{
    if (!m_interface->isRunning())
        return CvxErrorNotStarted;
    iface = m_interface;
    return CvxErrorSuccess;
}

CvxError CameraObject::readText(const std::string &text, char *buffer, unsigned &size) const
{
    return m_interface->isRunning() ? copyText(text, buffer, size) : CvxErrorNotStarted;
}
