#include "sdk/aravis/Usb3VisionSource.h"

#include "sdk/aravis/AravisCamera.h"

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

std::unique_ptr<OpenCamera> Usb3VisionSource::openCamera(
    const std::string &interfaceId, const std::string &deviceId, GenTL::DEVICE_ACCESS_FLAGS access)
{
    if (access == GenTL::DEVICE_ACCESS_READONLY)
        throw GenTlError(GenTL::GC_ERR_NOT_IMPLEMENTED,
            "A USB3 Vision camera cannot be watched, because only one program at a time can open it.");
    if (interfaceId == hostId && isUsbReady()) {
        for (const FoundDevice &device : m_search.devices()) {
            if (device.id == deviceId)
                return std::make_unique<AravisCamera>(
                    openDevice(device), displayName(device), ChunkByteOrder::LittleEndian);
        }
    }
    throw GenTlError(GenTL::GC_ERR_INVALID_ID, "The camera " + deviceId + " is not connected any more.");
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
