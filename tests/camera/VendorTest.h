#pragma once

#include "tests/camera/ProviderTest.h"

/// What the tests of a camera's vendor share.
namespace VendorTest {

using namespace CvxScripted;
using namespace ProviderTest;
using CvxCPP::CvxErrorSuccess;

inline DeviceRecord device(const std::string &id, const std::string &vendor)
{
    return {id, vendor, CvxErrorSuccess};
}

/// The vendor listed for a camera of that ID on that interface.
inline QString vendorOf(const std::string &id, const std::shared_ptr<InterfaceRecord> &iface)
{
    CameraRecord record;
    record.id = id;
    record.iface = iface;
    return listOne(record).vendorName;
}

/// The values that "DeviceSelector" was set to, in order.
inline QVector<long> selectedValues()
{
    QVector<long> values;
    for (const Call &call : calls()) {
        if (call.function == Function::SetValue)
            values.append(call.value);
    }
    return values;
}

/// How often "DeviceVendorName" was read, counting the calls for its length.
inline int vendorReads()
{
    int reads = 0;
    for (const Call &call : calls())
        reads += call.function == Function::GetValue && call.subject == "DeviceVendorName" && call.asksLength;
    return reads;
}

/// An interface on which camera "b" is the second device, and the first one is selected.
inline std::shared_ptr<InterfaceRecord> twoDevices()
{
    return makeInterface({device("a", "Avelin"), device("b", "Brightline")});
}

inline QString avelin()
{
    return QStringLiteral("Avelin");
}

inline QString brightline()
{
    return QStringLiteral("Brightline");
}

} // namespace VendorTest
