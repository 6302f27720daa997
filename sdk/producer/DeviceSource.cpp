#include "sdk/producer/DeviceSource.h"

#include <tuple>

bool operator==(const InterfaceRecord &left, const InterfaceRecord &right)
{
    return std::tie(left.id, left.displayName, left.tlType)
        == std::tie(right.id, right.displayName, right.tlType);
}

bool operator==(const DeviceRecord &left, const DeviceRecord &right)
{
    const auto fields = [](const DeviceRecord &record) {
        return std::tie(record.id, record.vendor, record.model, record.tlType, record.displayName,
            record.userName, record.serial, record.accessStatus, record.version);
    };
    return fields(left) == fields(right);
}

// A source that only finds cameras does not override this function.
std::unique_ptr<OpenCamera> DeviceSource::openCamera(
    const std::string &, const std::string &, GenTL::DEVICE_ACCESS_FLAGS)
{
    throw GenTlError(GenTL::GC_ERR_NOT_IMPLEMENTED, "This producer only finds cameras.");
}
