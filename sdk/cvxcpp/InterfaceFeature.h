#pragma once

#include "CvxCPP/CvxCPP.h"

class InterfaceObject;

/// One of the four features of an interface. The feature is a member of its interface object.
class InterfaceFeature final : public CvxCPP::Feature
{
public:
    enum class Kind
    {
        DeviceUpdateList,
        DeviceSelector,
        DeviceID,
        DeviceVendorName
    };

    InterfaceFeature(InterfaceObject &owner, Kind kind);

    CvxCPP::CvxError RunCommand() override;
    CvxCPP::CvxError GetRange(long &min, long &max) const override;
    CvxCPP::CvxError SetValue(long value) override;
    CvxCPP::CvxError GetValue(char *buffer, unsigned &size) const override;

private:
    InterfaceObject &m_owner;
    Kind m_kind;
};
