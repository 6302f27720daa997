#pragma once

#include "CvxCPP/CvxCPP.h"
#include "sdk/cvxcpp/InterfaceObject.h"

#include <cstddef>
#include <memory>
#include <string>

/// The API object for one camera. The cameras of an interface share the record of the interface, and each
/// camera stores the index of its device.
class CameraObject final : public CvxCPP::Camera
{
public:
    CameraObject(std::shared_ptr<InterfaceObject> interface, std::shared_ptr<const InterfaceRecord> record,
        std::size_t device);

    CvxCPP::CvxError GetID(char *buffer, unsigned &size, bool extended) const override;
    CvxCPP::CvxError GetModel(char *buffer, unsigned &size) const override;
    CvxCPP::CvxError GetName(char *buffer, unsigned &size) const override;
    CvxCPP::CvxError GetSerialNumber(char *buffer, unsigned &size) const override;
    CvxCPP::CvxError GetUserName(char *buffer, unsigned &size) const override;
    CvxCPP::CvxError GetInterfaceType(CvxCPP::CvxTransportLayerType &type) const override;
    CvxCPP::CvxError GetInterface(std::shared_ptr<CvxCPP::Interface> &iface) const override;
    CvxCPP::CvxResult Open(CvxCPP::CvxAccess access, std::shared_ptr<CvxCPP::Device> &device) override;

    const std::string &id() const { return device().id; }
    const std::string &interfaceId() const { return m_record->id; }
    const DeviceRecord &device() const { return m_record->devices[m_device]; }

private:
    CvxCPP::CvxError readString(const std::string &value, char *buffer, unsigned &size) const;

    const std::shared_ptr<InterfaceObject> m_interface;
    const std::shared_ptr<const InterfaceRecord> m_record;
    const std::size_t m_device;
};
