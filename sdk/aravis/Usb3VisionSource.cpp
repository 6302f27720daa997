#include "sdk/aravis/Usb3VisionSource.h"

#include <cstdio>
#include <libusb.h>

namespace {

constexpr char hostId[] = "usb";

} // namespace

ProducerIdentity Usb3VisionSource::identity() const
{
    return {"UniversalU3V", "Orvelle", "Universal USB3 Vision", CORVIX_PRODUCER_VERSION, GenTL::TLTypeU3VName,
        "Universal USB3 Vision producer"};
}

std::vector<InterfaceRecord> Usb3VisionSource::updateInterfaces()
{
    return {{hostId, "USB host", GenTL::TLTypeU3VName}};
}

std::vector<DeviceRecord> Usb3VisionSource::updateDevices(
    const std::string &interfaceId, std::chrono::milliseconds)
{
    std::vector<DeviceRecord> devices;
    if (interfaceId != hostId || !isUsbReady())
        return devices;
    for (const FoundDevice &device : m_search.devices())
        devices.push_back(toRecord(device));
    return devices;
}

bool Usb3VisionSource::isUsbReady()
{
    const std::lock_guard lock(m_mutex);
    if (m_isReady)
        return true;
    // Aravis initialises libusb only once per process and reports no failure, so libusb is tested first.
    libusb_context *context = nullptr;
    const int result = libusb_init(&context);
    m_isReady = result == LIBUSB_SUCCESS;
    if (m_isReady) {
        libusb_exit(context);
    } else if (!m_isReported) {
        std::fprintf(stderr, "Universal USB3 Vision producer: USB cannot be searched: %s\n",
            libusb_strerror(static_cast<libusb_error>(result)));
        m_isReported = true;
    }
    return m_isReady;
}

std::unique_ptr<DeviceSource> createDeviceSource(const std::filesystem::path &)
{
    return std::make_unique<Usb3VisionSource>();
}
