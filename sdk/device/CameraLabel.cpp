#include "sdk/device/CameraLabel.h"

namespace {

std::string nameOf(const DeviceRecord &device)
{
    if (device.model.empty())
        return device.name.empty() ? device.id : device.name;
    // Some producers repeat the vendor in the model name.
    if (device.vendor.empty() || device.model.compare(0, device.vendor.size(), device.vendor) == 0)
        return device.model;
    return device.vendor + ' ' + device.model;
}

} // namespace

std::string cameraLabel(const DeviceRecord &device)
{
    return device.serial.empty() ? nameOf(device) : nameOf(device) + " (" + device.serial + ')';
}
