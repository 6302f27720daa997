// These tests check the rules for the lists: access by index and by ID, updates, and threads.

#include "tests/producer/ConformanceTest.h"

#include <future>
#include <set>

using namespace GenTL;

namespace {

const std::set<std::string> singleTechnologies{
    "GEV", "U3V", "CL", "CLHS", "CXP", "IIDC", "UVC", "Ethernet", "PCI", "Custom"};

} // namespace

class ListConformance : public Conformance
{
protected:
    /// Updates the interfaces, opens them all and updates their devices.
    std::vector<IF_HANDLE> openUpdated() const
    {
        session.updateInterfaces();
        std::vector<IF_HANDLE> handles = session.openAll();
        for (const IF_HANDLE handle : handles)
            session.updateDevices(handle);
        return handles;
    }

    GC_ERROR interfaceInfo(const char *id, INTERFACE_INFO_CMD command) const
    {
        return codeOf(infoCall(producer().TLGetInterfaceInfo, session.system(), id, command));
    }

    GC_ERROR deviceInfo(IF_HANDLE handle, const char *id, DEVICE_INFO_CMD command) const
    {
        return codeOf(infoCall(producer().IFGetDeviceInfo, handle, id, command));
    }
};

TEST_F(ListConformance, listsAreNotAvailableBeforeTheirFirstUpdate)
{
    std::uint32_t count = 0;
    EXPECT_EQ(producer().TLGetNumInterfaces(session.system(), &count), GC_ERR_NOT_AVAILABLE);
    EXPECT_EQ(codeOf(idCall(producer().TLGetInterfaceID, session.system(), 0)), GC_ERR_NOT_AVAILABLE);
    session.updateInterfaces();
    for (const IF_HANDLE handle : session.openAll()) {
        EXPECT_EQ(producer().IFGetNumDevices(handle, &count), GC_ERR_NOT_AVAILABLE);
        EXPECT_EQ(codeOf(idCall(producer().IFGetDeviceID, handle, 0)), GC_ERR_NOT_AVAILABLE);
    }
}

TEST_F(ListConformance, interfacesCanBeReadByIndexAndById)
{
    session.updateInterfaces();
    for (const std::string &id : session.interfaceIds()) {
        const IF_HANDLE handle = session.open(id);
        EXPECT_EQ(session.interfaceString(id, INTERFACE_INFO_ID), id);
        EXPECT_FALSE(session.interfaceString(id, INTERFACE_INFO_DISPLAYNAME).empty());
        EXPECT_EQ(singleTechnologies.count(session.interfaceString(id, INTERFACE_INFO_TLTYPE)), 1U);
        for (const INTERFACE_INFO_CMD command :
            {INTERFACE_INFO_ID, INTERFACE_INFO_DISPLAYNAME, INTERFACE_INFO_TLTYPE})
            EXPECT_EQ(session.openInterfaceString(handle, command), session.interfaceString(id, command));
        for (const INTERFACE_INFO_CMD command : {-1, 3, INTERFACE_INFO_CUSTOM_ID}) {
            EXPECT_EQ(codeOf(infoCall(producer().IFGetInfo, handle, command)), GC_ERR_NOT_IMPLEMENTED);
            EXPECT_EQ(interfaceInfo(id.c_str(), command), GC_ERR_NOT_IMPLEMENTED);
        }
        TL_HANDLE parent = nullptr;
        EXPECT_EQ(producer().IFGetParentTL(handle, &parent), GC_ERR_SUCCESS);
        EXPECT_EQ(parent, session.system());
    }
}

TEST_F(ListConformance, devicesCanBeReadByIndexAndById)
{
    for (const IF_HANDLE handle : openUpdated()) {
        for (const std::string &id : session.deviceIds(handle)) {
            EXPECT_EQ(session.deviceString(handle, id, DEVICE_INFO_ID), id);
            EXPECT_FALSE(session.deviceString(handle, id, DEVICE_INFO_DISPLAYNAME).empty());
            EXPECT_EQ(singleTechnologies.count(session.deviceString(handle, id, DEVICE_INFO_TLTYPE)), 1U);
            const std::int32_t status = readNumber(
                infoCall(producer().IFGetDeviceInfo, handle, id.c_str(), DEVICE_INFO_ACCESS_STATUS),
                INFO_DATATYPE_INT32);
            EXPECT_GE(status, DEVICE_ACCESS_STATUS_UNKNOWN);
            EXPECT_LE(status, DEVICE_ACCESS_STATUS_OPEN_READONLY);
            const GC_ERROR version = deviceInfo(handle, id.c_str(), DEVICE_INFO_VERSION);
            EXPECT_TRUE(version == GC_ERR_SUCCESS || version == GC_ERR_NOT_AVAILABLE) << version;
            EXPECT_EQ(deviceInfo(handle, id.c_str(), DEVICE_INFO_TIMESTAMP_FREQUENCY), GC_ERR_NOT_AVAILABLE);
            for (const DEVICE_INFO_CMD command : {-1, 10, DEVICE_INFO_CUSTOM_ID, INT32_MIN})
                EXPECT_EQ(deviceInfo(handle, id.c_str(), command), GC_ERR_NOT_IMPLEMENTED);
        }
    }
}

TEST_F(ListConformance, unknownIndexesAndIdsAreRefused)
{
    const std::vector<IF_HANDLE> handles = openUpdated();
    const auto interfaces = static_cast<std::uint32_t>(handles.size());
    for (const std::uint32_t index : {interfaces, interfaces + 1, UINT32_MAX})
        EXPECT_EQ(codeOf(idCall(producer().TLGetInterfaceID, session.system(), index)), GC_ERR_INVALID_INDEX);
    for (const char *const id : {"", "no such ID", "\xff\xfe"}) {
        IF_HANDLE opened = nullptr;
        EXPECT_EQ(interfaceInfo(id, INTERFACE_INFO_ID), GC_ERR_INVALID_ID);
        EXPECT_EQ(producer().TLOpenInterface(session.system(), id, &opened), GC_ERR_INVALID_ID);
        for (const IF_HANDLE handle : handles)
            EXPECT_EQ(deviceInfo(handle, id, DEVICE_INFO_ID), GC_ERR_INVALID_ID);
    }
    for (const IF_HANDLE handle : handles) {
        const auto devices = static_cast<std::uint32_t>(session.deviceIds(handle).size());
        for (const std::uint32_t index : {devices, devices + 1, UINT32_MAX})
            EXPECT_EQ(codeOf(idCall(producer().IFGetDeviceID, handle, index)), GC_ERR_INVALID_INDEX);
    }
}

TEST_F(ListConformance, missingArgumentsAreRefused)
{
    const TL_HANDLE system = session.system();
    IF_HANDLE opened = nullptr;
    session.updateInterfaces();
    EXPECT_EQ(producer().TLGetNumInterfaces(system, nullptr), GC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(producer().TLGetInterfaceID(system, 0, nullptr, nullptr), GC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(interfaceInfo(nullptr, INTERFACE_INFO_ID), GC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(producer().TLOpenInterface(system, nullptr, &opened), GC_ERR_INVALID_PARAMETER);
    for (const std::string &id : session.interfaceIds()) {
        EXPECT_EQ(producer().TLOpenInterface(system, id.c_str(), nullptr), GC_ERR_INVALID_PARAMETER);
        const IF_HANDLE handle = session.open(id);
        EXPECT_EQ(producer().IFGetNumDevices(handle, nullptr), GC_ERR_INVALID_PARAMETER);
        EXPECT_EQ(producer().IFGetDeviceID(handle, 0, nullptr, nullptr), GC_ERR_INVALID_PARAMETER);
        EXPECT_EQ(deviceInfo(handle, nullptr, DEVICE_INFO_ID), GC_ERR_INVALID_PARAMETER);
        EXPECT_EQ(producer().IFGetParentTL(handle, nullptr), GC_ERR_INVALID_PARAMETER);
    }
}

TEST_F(ListConformance, interfaceCanBeOpenedOnlyOnceUntilItIsClosed)
{
    session.updateInterfaces();
    for (const std::string &id : session.interfaceIds()) {
        const IF_HANDLE first = session.open(id);
        session.updateDevices(first);
        IF_HANDLE second = nullptr;
        EXPECT_EQ(producer().TLOpenInterface(session.system(), id.c_str(), &second), GC_ERR_RESOURCE_IN_USE);
        EXPECT_EQ(producer().IFClose(first), GC_ERR_SUCCESS);
        EXPECT_EQ(producer().IFClose(first), GC_ERR_INVALID_HANDLE);
        const IF_HANDLE reopened = session.open(id);
        EXPECT_EQ(producer().IFClose(first), GC_ERR_INVALID_HANDLE) << "an old handle stays invalid";
        std::uint32_t count = 0;
        EXPECT_EQ(producer().IFGetNumDevices(reopened, &count), GC_ERR_NOT_AVAILABLE);
    }
}

TEST_F(ListConformance, updateReportsChangesOfTheUpdatedListOnly)
{
    const bool isChanged = session.updateInterfaces();
    EXPECT_EQ(isChanged, !session.interfaceIds().empty());
    EXPECT_FALSE(session.updateInterfaces());
    for (const IF_HANDLE handle : session.openAll()) {
        std::vector<std::string> before;
        for (const std::uint64_t timeout : {std::uint64_t(0), std::uint64_t(0xFFFFFFFF), GENTL_INFINITE}) {
            bool8_t isListChanged = 2;
            EXPECT_EQ(producer().IFUpdateDeviceList(handle, &isListChanged, timeout), GC_ERR_SUCCESS);
            EXPECT_EQ(isListChanged, session.deviceIds(handle) != before);
            before = session.deviceIds(handle);
            EXPECT_EQ(producer().TLUpdateInterfaceList(session.system(), nullptr, timeout), GC_ERR_SUCCESS);
            EXPECT_EQ(session.deviceIds(handle), before);
        }
    }
}

TEST_F(ListConformance, threadsMayReadAndUpdateAtTheSameTime)
{
    const std::vector<IF_HANDLE> handles = openUpdated();
    const auto updateAndRead = [&] {
        for (int round = 0; round < 50; ++round) {
            std::uint32_t count = 0;
            session.updateInterfaces();
            for (const IF_HANDLE handle : handles) {
                session.updateDevices(handle);
                EXPECT_EQ(codeOf(infoCall(producer().IFGetInfo, handle, INTERFACE_INFO_ID)), GC_ERR_SUCCESS);
                EXPECT_EQ(producer().IFGetNumDevices(handle, &count), GC_ERR_SUCCESS);
                for (std::uint32_t index = 0; index < count; ++index) {
                    const GC_ERROR code = codeOf(idCall(producer().IFGetDeviceID, handle, index));
                    EXPECT_TRUE(code == GC_ERR_SUCCESS || code == GC_ERR_INVALID_INDEX) << code;
                }
            }
        }
    };
    std::vector<std::future<void>> threads; // The destructor waits for all threads.
    for (int i = 0; i < 4; ++i)
        threads.push_back(std::async(std::launch::async, updateAndRead));
}
