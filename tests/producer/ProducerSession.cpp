#include "tests/producer/ProducerSession.h"

#include <gtest/gtest.h>

using namespace GenTL;

namespace {

constexpr std::uint64_t timeout = 500; // Milliseconds
constexpr bool8_t neverWritten = 0xA5;

} // namespace

InfoCall libraryInfo(const LoadedProducer &producer, TL_INFO_CMD command)
{
    return [&producer, command](INFO_DATATYPE *type, void *buffer, std::size_t *size) {
        return producer.GCGetInfo(command, type, buffer, size);
    };
}

InfoCall systemInfo(const LoadedProducer &producer, TL_HANDLE system, TL_INFO_CMD command)
{
    return [&producer, system, command](INFO_DATATYPE *type, void *buffer, std::size_t *size) {
        return producer.TLGetInfo(system, command, type, buffer, size);
    };
}

InfoCall interfaceId(const LoadedProducer &producer, TL_HANDLE system, std::uint32_t index)
{
    return [&producer, system, index](INFO_DATATYPE *, void *buffer, std::size_t *size) {
        return producer.TLGetInterfaceID(system, index, static_cast<char *>(buffer), size);
    };
}

InfoCall listedInterfaceInfo(
    const LoadedProducer &producer, TL_HANDLE system, const std::string &id, INTERFACE_INFO_CMD command)
{
    return [&producer, system, id, command](INFO_DATATYPE *type, void *buffer, std::size_t *size) {
        return producer.TLGetInterfaceInfo(system, id.c_str(), command, type, buffer, size);
    };
}

InfoCall openInterfaceInfo(const LoadedProducer &producer, IF_HANDLE handle, INTERFACE_INFO_CMD command)
{
    return [&producer, handle, command](INFO_DATATYPE *type, void *buffer, std::size_t *size) {
        return producer.IFGetInfo(handle, command, type, buffer, size);
    };
}

InfoCall deviceId(const LoadedProducer &producer, IF_HANDLE handle, std::uint32_t index)
{
    return [&producer, handle, index](INFO_DATATYPE *, void *buffer, std::size_t *size) {
        return producer.IFGetDeviceID(handle, index, static_cast<char *>(buffer), size);
    };
}

InfoCall deviceInfo(
    const LoadedProducer &producer, IF_HANDLE handle, const std::string &id, DEVICE_INFO_CMD command)
{
    return [&producer, handle, id, command](INFO_DATATYPE *type, void *buffer, std::size_t *size) {
        return producer.IFGetDeviceInfo(handle, id.c_str(), command, type, buffer, size);
    };
}

ProducerSession::ProducerSession(const std::filesystem::path &file) : m_producer(file)
{
    EXPECT_EQ(m_producer.GCInitLib(), GC_ERR_SUCCESS);
    EXPECT_EQ(m_producer.TLOpen(&m_system), GC_ERR_SUCCESS);
    EXPECT_NE(m_system, GENTL_INVALID_HANDLE);
}

ProducerSession::~ProducerSession()
{
    // No TLClose: some tests have closed the system already, and closing the library closes all of it.
    EXPECT_EQ(m_producer.GCCloseLib(), GC_ERR_SUCCESS);
}

bool ProducerSession::updateInterfaces() const
{
    bool8_t changed = neverWritten;
    EXPECT_EQ(m_producer.TLUpdateInterfaceList(m_system, &changed, timeout), GC_ERR_SUCCESS);
    EXPECT_NE(changed, neverWritten);
    return changed != 0;
}

bool ProducerSession::updateDevices(IF_HANDLE handle) const
{
    bool8_t changed = neverWritten;
    EXPECT_EQ(m_producer.IFUpdateDeviceList(handle, &changed, timeout), GC_ERR_SUCCESS);
    EXPECT_NE(changed, neverWritten);
    return changed != 0;
}

std::vector<std::string> ProducerSession::interfaceIds() const
{
    std::uint32_t count = 0;
    EXPECT_EQ(m_producer.TLGetNumInterfaces(m_system, &count), GC_ERR_SUCCESS);
    std::vector<std::string> ids;
    for (std::uint32_t index = 0; index < count; ++index)
        ids.push_back(readId(interfaceId(m_producer, m_system, index)));
    return ids;
}

std::vector<std::string> ProducerSession::deviceIds(IF_HANDLE handle) const
{
    std::uint32_t count = 0;
    EXPECT_EQ(m_producer.IFGetNumDevices(handle, &count), GC_ERR_SUCCESS);
    std::vector<std::string> ids;
    for (std::uint32_t index = 0; index < count; ++index)
        ids.push_back(readId(deviceId(m_producer, handle, index)));
    return ids;
}

IF_HANDLE ProducerSession::open(const std::string &id) const
{
    IF_HANDLE handle = nullptr;
    EXPECT_EQ(m_producer.TLOpenInterface(m_system, id.c_str(), &handle), GC_ERR_SUCCESS) << id;
    EXPECT_NE(handle, GENTL_INVALID_HANDLE);
    return handle;
}

std::string ProducerSession::interfaceText(const std::string &id, INTERFACE_INFO_CMD command) const
{
    return readText(listedInterfaceInfo(m_producer, m_system, id, command));
}

std::string ProducerSession::deviceText(
    IF_HANDLE handle, const std::string &id, DEVICE_INFO_CMD command) const
{
    return readText(deviceInfo(m_producer, handle, id, command));
}
