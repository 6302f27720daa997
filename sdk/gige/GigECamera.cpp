#include "sdk/gige/GigECamera.h"

#include "sdk/aravis/AravisLibrary.h"
#include "sdk/gige/DescriptionUrls.h"
#include "sdk/gige/GvcpReader.h"
#include "sdk/gige/RegisterWords.h"
#include "sdk/gige/WatchedCamera.h"
#include "sdk/gvcp/CameraData.h"
#include "sdk/gvcp/Descriptor.h"

#include <algorithm>
#include <arpa/inet.h>
#include <cstring>
#include <sys/socket.h>

namespace {

constexpr std::uint32_t controlRegister = 0x0A00; // 0 if no program controls the camera.
constexpr std::uint32_t controllerAddressRegister = 0x0A14; // IPv4 address of the program that controls it.
constexpr std::uint32_t exclusiveAccess = 1;
constexpr std::uint32_t capabilityRegister = 0x0934;
constexpr std::uint32_t writeMemoryCapability = 2;
constexpr std::uint32_t packetSizeRegister = 0x0D04;

/// @param controller IP address of the other program; 0 if it is unknown.
GenTlError controlledElsewhere(const std::string &name, std::uint32_t controller = 0)
{
    const std::string program
        = controller == 0 ? "another program" : "a program at " + ipv4ToString(controller);
    return {GenTL::GC_ERR_ACCESS_DENIED, name + " is in use: " + program + " controls it."};
}

/// Returns the IP address of the program that controls the camera; 0 if the camera does not tell it.
std::uint32_t readControllerAddress(GvcpReader &reader)
{
    try {
        return reader.readRegister(controllerAddressRegister);
    } catch (const GenTlError &) {
        return 0;
    }
}

GObjectPointer<GInetAddress> toGlib(std::uint32_t address)
{
    return GObjectPointer<GInetAddress>(g_inet_address_new_from_string(ipv4ToString(address).c_str()));
}

/// Returns true if the system permits a receive buffer that holds the packets of several milliseconds.
bool permitsLargeReceiveBuffer()
{
    constexpr int largeSize = 2 << 20; // Bytes.
    const Descriptor probe(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0));
    setsockopt(probe.number(), SOL_SOCKET, SO_RCVBUF, &largeSize, sizeof largeSize);
    int size = 0;
    socklen_t length = sizeof size;
    getsockopt(probe.number(), SOL_SOCKET, SO_RCVBUF, &size, &length);
    return size / 2 >= largeSize; // The system doubles the number for its own overhead.
}

/// Opens the camera with libaravis, which tries to take the control.
GObjectPointer<ArvDevice> openWithAravis(const CameraPlace &place)
{
    keepAravisLoaded();
    const auto interfaceAddress = toGlib(place.interfaceAddress);
    const auto cameraAddress = toGlib(place.cameraAddress);
    const std::lock_guard lock(aravisParserMutex());
    AravisError error;
    GObjectPointer<ArvDevice> device(
        arv_gv_device_new(interfaceAddress.get(), cameraAddress.get(), error.receiver()));
    if (!device)
        throw error.toGenTl(place.name + " cannot be opened");
    if (!arv_gv_device_is_controller(ARV_GV_DEVICE(device.get())))
        throw controlledElsewhere(place.name);
    ArvGvDevice *const gigeDevice = ARV_GV_DEVICE(device.get());
    arv_gv_device_set_packet_size_adjustment(
        gigeDevice, ARV_GV_PACKET_SIZE_ADJUSTMENT_NEVER); // prepareStream() does it.
    // A packet socket, which only privileged processes can have, needs no such buffer. But it takes 0.1
    // seconds to set up, and passes small images on in bursts, for which there may be too few announced
    // buffers.
    if (permitsLargeReceiveBuffer())
        arv_gv_device_set_stream_options(gigeDevice, ARV_GV_STREAM_OPTION_PACKET_SOCKET_DISABLED);
    return device;
}

} // namespace

std::unique_ptr<OpenCamera> openGigECamera(const CameraPlace &place, GenTL::DEVICE_ACCESS_FLAGS access)
{
    if (access == GenTL::DEVICE_ACCESS_READONLY)
        return std::make_unique<WatchedCamera>(place.interfaceAddress, place.cameraAddress);
    // libaravis would wait for seconds if the camera is silent or controlled by another program.
    GvcpReader reader(place.interfaceAddress, place.cameraAddress);
    if (reader.readRegister(controlRegister) != 0)
        throw controlledElsewhere(place.name, readControllerAddress(reader));
    auto camera = std::make_unique<GigECamera>(place);
    if (access == GenTL::DEVICE_ACCESS_EXCLUSIVE)
        camera->takeExclusiveAccess();
    return camera;
}

GigECamera::GigECamera(const CameraPlace &place)
    : AravisCamera(openWithAravis(place), place.name, ChunkByteOrder::BigEndian)
{
    std::uint32_t capabilities = 0;
    readRegisters(capabilityRegister, &capabilities, sizeof capabilities);
    m_canWriteMemory = (ntohl(capabilities) & writeMemoryCapability) != 0;
    m_urls = readDescriptionUrls(
        [this](std::uint64_t address, void *data, std::size_t size) { readRegisters(address, data, size); });
    if (m_urls.empty() || !isLocalUrl(m_urls.front()))
        m_urls = AravisCamera::descriptionUrls(); // libaravis has fetched the file.
}

void GigECamera::takeExclusiveAccess()
{
    AravisError error;
    if (!arv_device_write_register(device(), controlRegister, exclusiveAccess, error.receiver()))
        throw error.toGenTl(name() + " does not permit exclusive access");
}

void GigECamera::readRegisters(std::uint64_t address, void *data, std::size_t size)
{
    const RegisterWords words = wordsAround(address, size);
    if (words.size == size)
        return AravisCamera::readRegisters(address, data, size);
    std::vector<std::uint8_t> bytes(words.size);
    AravisCamera::readRegisters(words.start, bytes.data(), bytes.size());
    std::memcpy(data, bytes.data() + words.offset, size);
}

void GigECamera::writeRegisters(std::uint64_t address, const void *data, std::size_t size)
{
    const RegisterWords words = wordsAround(address, size);
    std::vector<std::uint8_t> bytes(words.size);
    if (words.size != size)
        AravisCamera::readRegisters(words.start, bytes.data(), bytes.size());
    std::memcpy(bytes.data() + words.offset, data, size);

    if (words.start <= packetSizeRegister && packetSizeRegister < words.start + words.size)
        m_isPacketSizeChosen = true;
    if (m_canWriteMemory && words.size > registerSize)
        return AravisCamera::writeRegisters(words.start, bytes.data(), bytes.size());
    for (std::size_t offset = 0; offset < words.size; offset += registerSize)
        writeRegister(static_cast<std::uint32_t>(words.start + offset), bytes.data() + offset);
}

/// Negotiates the largest packets that arrive, unless the consumer has chosen a size.
void GigECamera::prepareStream()
{
    if (m_isPacketSizeChosen.exchange(true))
        return;
    // If the camera cannot test packet sizes, its own size is used.
    AravisError error;
    arv_gv_device_auto_packet_size(ARV_GV_DEVICE(device()), error.receiver());
}

void GigECamera::writeRegister(std::uint32_t address, const std::uint8_t *data)
{
    std::uint32_t number = 0;
    std::memcpy(&number, data, sizeof number);
    AravisError error;
    if (!arv_device_write_register(device(), address, ntohl(number), error.receiver()))
        fail(error, address, "written");
}
