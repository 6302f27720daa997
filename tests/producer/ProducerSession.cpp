#include "tests/producer/ProducerSession.h"

#include <gtest/gtest.h>

using namespace GenTL;

namespace {

constexpr std::uint64_t timeout = 500; // Milliseconds
constexpr bool8_t neverWritten = 0xA5;

/// Returns all IDs of a list that has this number of entries.
template <typename Function>
std::vector<std::string> readIds(Function function, void *handle, std::uint32_t count)
{
    std::vector<std::string> ids;
    for (std::uint32_t index = 0; index < count; ++index)
        ids.push_back(readId(idCall(function, handle, index)));
    return ids;
}

} // namespace

ProducerSession::ProducerSession(const std::filesystem::path &file) : m_producer(file)
{
    EXPECT_EQ(m_producer.GCInitLib(), GC_ERR_SUCCESS);
    EXPECT_EQ(m_producer.TLOpen(&m_system), GC_ERR_SUCCESS);
    EXPECT_NE(m_system, GENTL_INVALID_HANDLE);
}

ProducerSession::~ProducerSession()
{
    // No TLClose: some tests have closed the system already, and closing the library closes everything.
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
    return readIds(m_producer.TLGetInterfaceID, m_system, count);
}

std::vector<std::string> ProducerSession::deviceIds(IF_HANDLE handle) const
{
    std::uint32_t count = 0;
    EXPECT_EQ(m_producer.IFGetNumDevices(handle, &count), GC_ERR_SUCCESS);
    return readIds(m_producer.IFGetDeviceID, handle, count);
}

IF_HANDLE ProducerSession::open(const std::string &id) const
{
    IF_HANDLE handle = nullptr;
    EXPECT_EQ(m_producer.TLOpenInterface(m_system, id.c_str(), &handle), GC_ERR_SUCCESS) << id;
    EXPECT_NE(handle, GENTL_INVALID_HANDLE);
    return handle;
}

std::vector<IF_HANDLE> ProducerSession::openAll() const
{
    std::vector<IF_HANDLE> handles;
    for (const std::string &id : interfaceIds())
        handles.push_back(open(id));
    return handles;
}

std::string ProducerSession::interfaceString(const std::string &id, INTERFACE_INFO_CMD command) const
{
    return readString(infoCall(m_producer.TLGetInterfaceInfo, m_system, id.c_str(), command));
}

std::string ProducerSession::openInterfaceString(IF_HANDLE handle, INTERFACE_INFO_CMD command) const
{
    return readString(infoCall(m_producer.IFGetInfo, handle, command));
}

std::string ProducerSession::deviceString(
    IF_HANDLE handle, const std::string &id, DEVICE_INFO_CMD command) const
{
    return readString(infoCall(m_producer.IFGetDeviceInfo, handle, id.c_str(), command));
}

std::pair<GC_ERROR, std::string> ProducerSession::lastError() const
{
    GC_ERROR code = GC_ERR_SUCCESS;
    const std::string message = readId(idCall(m_producer.GCGetLastError, &code));
    return {code, message};
}
