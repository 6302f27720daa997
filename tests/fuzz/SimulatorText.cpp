// Parses the input as the text of a simulator configuration.

#include "sdk/simulator/SimulatorConfiguration.h"
#include "tests/fuzz/FuzzTarget.h"

#include <set>
#include <stdexcept>

namespace {

void requireNoNul(std::initializer_list<std::string> strings)
{
    for (const std::string &string : strings)
        require(string.find('\0') == std::string::npos, "a string contains no NUL");
}

void requireDevices(const std::vector<DeviceRecord> &devices)
{
    std::set<std::string> ids;
    for (const DeviceRecord &device : devices) {
        requireNoNul({device.id, device.vendor, device.model, device.serial, device.userName,
            device.displayName, device.tlType});
        require(!device.id.empty() && !device.displayName.empty() && !device.tlType.empty(),
            "a device has an ID, a display name and a technology");
        require(ids.insert(device.id).second, "a device ID is unique on its interface");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    try {
        std::set<std::string> ids;
        for (const SimulatedInterface &interface : parseConfiguration(textOf(data, size))) {
            const InterfaceRecord &record = interface.record;
            requireNoNul({record.id, record.displayName, record.tlType});
            require(!record.id.empty() && !record.displayName.empty() && !record.tlType.empty(),
                "an interface has an ID, a display name and a technology");
            require(ids.insert(record.id).second, "an interface ID is unique");
            requireDevices(interface.devices);
        }
    } catch (const std::runtime_error &error) { // parseConfiguration() may throw only this type.
        require(*error.what() != '\0', "an error has a message");
    }
    return 0;
}
