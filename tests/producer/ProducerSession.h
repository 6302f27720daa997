#pragma once

#include "tests/producer/LoadedProducer.h"
#include "tests/producer/StrictRead.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

/// Initialises a producer and opens its system; the destructor closes the library. Every failing call is a
/// test failure.
class ProducerSession
{
public:
    /// Without a file, uses the producer that is linked into this program.
    explicit ProducerSession(const std::filesystem::path &file = {}) : m_producer(file)
    {
        EXPECT_EQ(m_producer.GCInitLib(), GenTL::GC_ERR_SUCCESS);
        EXPECT_EQ(m_producer.TLOpen(&m_system), GenTL::GC_ERR_SUCCESS);
        EXPECT_NE(m_system, GenTL::GENTL_INVALID_HANDLE);
    }

    /// Does not call TLClose, because some tests have already closed the system and GCCloseLib closes
    /// everything.
    ~ProducerSession() { EXPECT_EQ(m_producer.GCCloseLib(), GenTL::GC_ERR_SUCCESS); }

    const LoadedProducer &producer() const { return m_producer; }
    GenTL::TL_HANDLE system() const { return m_system; }

    /// Each of these two functions updates a list and returns whether the producer reports a change.
    bool updateInterfaces() const { return update(m_producer.TLUpdateInterfaceList, m_system); }
    bool updateDevices(GenTL::IF_HANDLE handle) const
    {
        return update(m_producer.IFUpdateDeviceList, handle);
    }

    /// Each of these two functions returns the IDs of a list as of the last update.
    std::vector<std::string> interfaceIds() const
    {
        return readIds(m_producer.TLGetNumInterfaces, m_producer.TLGetInterfaceID, m_system);
    }
    std::vector<std::string> deviceIds(GenTL::IF_HANDLE handle) const
    {
        return readIds(m_producer.IFGetNumDevices, m_producer.IFGetDeviceID, handle);
    }

    GenTL::IF_HANDLE open(const std::string &interfaceId) const
    {
        GenTL::IF_HANDLE handle = nullptr;
        EXPECT_EQ(m_producer.TLOpenInterface(m_system, interfaceId.c_str(), &handle), GenTL::GC_ERR_SUCCESS);
        EXPECT_NE(handle, GenTL::GENTL_INVALID_HANDLE);
        return handle;
    }

    std::vector<GenTL::IF_HANDLE> openAll() const
    {
        std::vector<GenTL::IF_HANDLE> handles;
        for (const std::string &id : interfaceIds())
            handles.push_back(open(id));
        return handles;
    }

    std::string interfaceString(const std::string &id, GenTL::INTERFACE_INFO_CMD command) const
    {
        return readString(infoCall(m_producer.TLGetInterfaceInfo, m_system, id.c_str(), command));
    }
    std::string openInterfaceString(GenTL::IF_HANDLE handle, GenTL::INTERFACE_INFO_CMD command) const
    {
        return readString(infoCall(m_producer.IFGetInfo, handle, command));
    }
    std::string deviceString(
        GenTL::IF_HANDLE handle, const std::string &id, GenTL::DEVICE_INFO_CMD command) const
    {
        return readString(infoCall(m_producer.IFGetDeviceInfo, handle, id.c_str(), command));
    }

    /// Returns the code and the message of this thread's last error.
    std::pair<GenTL::GC_ERROR, std::string> lastError() const
    {
        GenTL::GC_ERROR code = GenTL::GC_ERR_SUCCESS;
        const std::string message = readId(idCall(m_producer.GCGetLastError, &code));
        return {code, message};
    }

private:
    template <typename Function>
    static bool update(Function function, void *handle)
    {
        constexpr GenTL::bool8_t neverWritten = 0xA5;
        GenTL::bool8_t isChanged = neverWritten;
        EXPECT_EQ(function(handle, &isChanged, 500), GenTL::GC_ERR_SUCCESS);
        EXPECT_NE(isChanged, neverWritten);
        return isChanged != 0;
    }

    template <typename Count, typename Id>
    static std::vector<std::string> readIds(Count count, Id id, void *handle)
    {
        std::uint32_t size = 0;
        EXPECT_EQ(count(handle, &size), GenTL::GC_ERR_SUCCESS);
        std::vector<std::string> ids;
        for (std::uint32_t index = 0; index < size; ++index)
            ids.push_back(readId(idCall(id, handle, index)));
        return ids;
    }

    LoadedProducer m_producer;
    GenTL::TL_HANDLE m_system = nullptr;
};
