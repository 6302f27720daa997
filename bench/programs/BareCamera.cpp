#include "bench/programs/BareCamera.h"

#include "sdk/camerahost/RegisterDescription.h"

#include <cstdio>
#include <cstdlib>
#include <memory>

using namespace GenTL;

namespace {

[[noreturn]] void fail(const std::string &text)
{
    std::fprintf(stderr, "bench_bare_stream: %s\n", text.c_str());
    std::exit(EXIT_FAILURE);
}

/// Reads an ID with the two-call protocol.
template <typename Query>
std::string readId(const Query &query)
{
    std::size_t size = 0;
    if (query(nullptr, &size) != GC_ERR_SUCCESS)
        return {};
    std::string text(size, '\0');
    if (query(text.data(), &size) != GC_ERR_SUCCESS)
        return {};
    return text.c_str();
}

} // namespace

template <typename Function, typename... Arguments>
void BareCamera::require(const char *name, Function function, Arguments... arguments)
{
    if (const auto problem = m_library.call(name, function, arguments...))
        fail(problem->call + ' ' + std::to_string(problem->code) + ' ' + problem->text);
}

BareCamera::BareCamera(const std::string &producerFile, const std::string &deviceId)
{
    if (m_library.load(producerFile.c_str()) || m_library.resolveDeviceFunctions()
        || m_library.checkStreamFunctions())
        fail("the producer cannot be loaded");
    require("GCInitLib", m_library.GCInitLib);
    require("TLOpen", m_library.TLOpen, &m_system);
    openDevice(deviceId);
    require("DevGetPort", m_library.DevGetPort, m_device, &m_port);
    const auto description = fetchRegisterDescription(m_library, m_port, producerFile);
    if (const auto *failure = std::get_if<RequestFailedReply>(&description))
        fail(failure->text);
    auto nodes = NodeMap::create(*this, std::get<std::string>(description));
    if (const auto *failure = std::get_if<RequestFailedReply>(&nodes))
        fail(failure->text);
    m_nodes = std::move(std::get<std::unique_ptr<NodeMap>>(nodes));
}

void BareCamera::openDevice(const std::string &deviceId)
{
    constexpr std::uint64_t timeout = 1000; // Milliseconds.
    std::uint32_t interfaces = 0;
    require("TLUpdateInterfaceList", m_library.TLUpdateInterfaceList, m_system, nullptr, timeout);
    require("TLGetNumInterfaces", m_library.TLGetNumInterfaces, m_system, &interfaces);
    for (std::uint32_t index = 0; index < interfaces; ++index) {
        const std::string id = readId([&](char *buffer, std::size_t *size) {
            return m_library.TLGetInterfaceID(m_system, index, buffer, size);
        });
        IF_HANDLE interface = nullptr;
        require("TLOpenInterface", m_library.TLOpenInterface, m_system, id.c_str(), &interface);
        require("IFUpdateDeviceList", m_library.IFUpdateDeviceList, interface, nullptr, timeout);
        if (m_library.IFOpenDevice(interface, deviceId.c_str(), DEVICE_ACCESS_CONTROL, &m_device)
            == GC_ERR_SUCCESS)
            return;
    }
    fail("the camera cannot be opened");
}

std::optional<Problem> BareCamera::read(std::uint64_t address, void *data, std::size_t size)
{
    return m_library.call("GCReadPort", m_library.GCReadPort, m_port, address, data, &size);
}

std::optional<Problem> BareCamera::write(std::uint64_t address, const void *data, std::size_t size)
{
    return m_library.call("GCWritePort", m_library.GCWritePort, m_port, address, data, &size);
}

void BareCamera::start(std::size_t buffers)
{
    const std::string id = readId([&](char *buffer, std::size_t *size) {
        return m_library.DevGetDataStreamID(m_device, 0, buffer, size);
    });
    require("DevOpenDataStream", m_library.DevOpenDataStream, m_device, id.c_str(), &m_stream);
    m_nodes->writeInteger("TLParamsLocked", 1);
    const auto payload = static_cast<std::size_t>(m_nodes->readInteger("PayloadSize").value_or(0));
    constexpr std::size_t pageSize = 4096; // Copying to aligned memory is faster.
    const std::size_t size = (payload + pageSize - 1) / pageSize * pageSize;
    std::size_t space = buffers * size + pageSize;
    m_memory.resize(space);
    void *memory = m_memory.data();
    std::align(pageSize, buffers * size, memory, space);
    for (std::size_t number = 0; number < buffers; ++number) {
        BUFFER_HANDLE buffer = nullptr;
        require("DSAnnounceBuffer", m_library.DSAnnounceBuffer, m_stream,
            static_cast<void *>(static_cast<std::uint8_t *>(memory) + number * size), payload, nullptr,
            &buffer);
        require("DSQueueBuffer", m_library.DSQueueBuffer, m_stream, buffer);
    }
    require("GCRegisterEvent", m_library.GCRegisterEvent, m_stream, EVENT_NEW_BUFFER, &m_event);
    require("DSStartAcquisition", m_library.DSStartAcquisition, m_stream, ACQ_START_FLAGS_DEFAULT,
        GENTL_INFINITE);
    m_nodes->execute("AcquisitionStart");
}

void BareCamera::takeImage()
{
    constexpr std::uint64_t timeout = 5000; // Milliseconds.
    EVENT_NEW_BUFFER_DATA data{};
    std::size_t size = sizeof data;
    require("EventGetData", m_library.EventGetData, m_event, static_cast<void *>(&data), &size, timeout);
    INFO_DATATYPE type = 0;
    std::uint64_t frameId = 0;
    size = sizeof frameId;
    require("DSGetBufferInfo", m_library.DSGetBufferInfo, m_stream, data.BufferHandle, BUFFER_INFO_FRAMEID,
        &type, static_cast<void *>(&frameId), &size);
    require("DSQueueBuffer", m_library.DSQueueBuffer, m_stream, data.BufferHandle);
}

void BareCamera::stop()
{
    m_nodes->execute("AcquisitionStop");
    m_library.DSStopAcquisition(m_stream, ACQ_STOP_FLAGS_DEFAULT);
    m_library.DSClose(m_stream);
    m_nodes->writeInteger("TLParamsLocked", 0);
    m_library.DevClose(m_device);
    m_library.TLClose(m_system);
    m_library.GCCloseLib();
}
