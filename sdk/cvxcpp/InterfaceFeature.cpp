#include "sdk/cvxcpp/InterfaceFeature.h"

#include "sdk/cvxcpp/InterfaceObject.h"

InterfaceFeature::InterfaceFeature(InterfaceObject &owner, Kind kind) : m_owner(owner), m_kind(kind) { }

CvxCPP::CvxError InterfaceFeature::RunCommand()
{
    return m_kind == Kind::DeviceUpdateList ? m_owner.updateDeviceList() : CvxCPP::CvxErrorWrongType;
}

CvxCPP::CvxError InterfaceFeature::GetRange(long &min, long &max) const
{
    return m_kind == Kind::DeviceSelector ? m_owner.selectorRange(min, max) : CvxCPP::CvxErrorWrongType;
}

CvxCPP::CvxError InterfaceFeature::SetValue(long value)
{
    return m_kind == Kind::DeviceSelector ? m_owner.select(value) : CvxCPP::CvxErrorWrongType;
}

CvxCPP::CvxError InterfaceFeature::GetValue(char *buffer, unsigned &size) const
{
    if (m_kind == Kind::DeviceID)
        return m_owner.selectedField(&DeviceRecord::id, buffer, size);
    if (m_kind == Kind::DeviceVendorName)
        return m_owner.selectedField(&DeviceRecord::vendor, buffer, size);
    return CvxCPP::CvxErrorWrongType;
}
