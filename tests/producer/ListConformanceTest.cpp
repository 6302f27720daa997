// The rules of the lists: interfaces and devices by index and by ID, updates, snapshots, threads.

#include "tests/producer/ProducerSession.h"
#include "tests/producer/ProducersUnderTest.h"

#include <atomic>
#include <set>
#include <thread>

using namespace GenTL;

namespace {

const std::set<std::string> tlTypesOfOneTechnology{
    "GEV", "U3V", "CL", "CLHS", "CXP", "IIDC", "UVC", "Ethernet", "PCI", "Custom"};

void expectUniqueIds(const std::vector<std::string> &ids)
{
    EXPECT_EQ(std::set<std::string>(ids.begin(), ids.end()).size(), ids.size());
    for (const std::string &id : ids)
        EXPECT_FALSE(id.empty());
}

} // namespace

class ListConformance : public testing::TestWithParam<std::filesystem::path>
{
protected:
    const LoadedProducer &producer() const { return session.producer(); }

    /// The interfaces of a fresh update, all opened and updated.
    std::vector<IF_HANDLE> openAll() const
    {
        session.updateInterfaces();
        std::vector<IF_HANDLE> handles;
        for (const std::string &id : session.interfaceIds()) {
            handles.push_back(session.open(id));
            session.updateDevices(handles.back());
        }
        return handles;
    }

    const ProducerSession session{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Of, ListConformance, testing::ValuesIn(producersUnderTest()), producerTestName);

TEST_P(ListConformance, InterfacesAreNotAvailableBeforeTheFirstUpdate)
{
    std::uint32_t count = 0;
    EXPECT_EQ(producer().TLGetNumInterfaces(session.system(), &count), GC_ERR_NOT_AVAILABLE);
    EXPECT_EQ(codeOf(interfaceId(producer(), session.system(), 0)), GC_ERR_NOT_AVAILABLE);
}

TEST_P(ListConformance, InterfacesAreListedByIndexAndById)
{
    session.updateInterfaces();
    const std::vector<std::string> ids = session.interfaceIds();
    expectUniqueIds(ids);
    for (const std::string &id : ids) {
        EXPECT_EQ(session.interfaceText(id, INTERFACE_INFO_ID), id);
        EXPECT_FALSE(session.interfaceText(id, INTERFACE_INFO_DISPLAYNAME).empty());
        EXPECT_EQ(tlTypesOfOneTechnology.count(session.interfaceText(id, INTERFACE_INFO_TLTYPE)), 1U);
    }
}

TEST_P(ListConformance, InterfaceCallsRefuseWhatIsNotInTheList)
{
    session.updateInterfaces();
    const auto count = static_cast<std::uint32_t>(session.interfaceIds().size());
    for (const std::uint32_t index : {count, count + 1, UINT32_MAX})
        EXPECT_EQ(codeOf(interfaceId(producer(), session.system(), index)), GC_ERR_INVALID_INDEX) << index;

    IF_HANDLE handle = nullptr;
    for (const char *const id : {"", "no such interface", "\xff\xfe"}) {
        EXPECT_EQ(codeOf(listedInterfaceInfo(producer(), session.system(), id, INTERFACE_INFO_ID)),
            GC_ERR_INVALID_ID);
        EXPECT_EQ(producer().TLOpenInterface(session.system(), id, &handle), GC_ERR_INVALID_ID);
    }
}

TEST_P(ListConformance, InterfaceCallsRefuseMissingArguments)
{
    session.updateInterfaces();
    INFO_DATATYPE type = INFO_DATATYPE_UNKNOWN;
    std::size_t size = 0;
    IF_HANDLE handle = nullptr;
    EXPECT_EQ(producer().TLGetNumInterfaces(session.system(), nullptr), GC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(producer().TLGetInterfaceID(session.system(), 0, nullptr, nullptr), GC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(
        producer().TLGetInterfaceInfo(session.system(), nullptr, INTERFACE_INFO_ID, &type, nullptr, &size),
        GC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(producer().TLOpenInterface(session.system(), nullptr, &handle), GC_ERR_INVALID_PARAMETER);
    for (const std::string &id : session.interfaceIds())
        EXPECT_EQ(
            producer().TLOpenInterface(session.system(), id.c_str(), nullptr), GC_ERR_INVALID_PARAMETER);
}

TEST_P(ListConformance, AnInterfaceOpensOnceUntilClosed)
{
    session.updateInterfaces();
    for (const std::string &id : session.interfaceIds()) {
        const IF_HANDLE first = session.open(id);
        IF_HANDLE second = nullptr;
        EXPECT_EQ(producer().TLOpenInterface(session.system(), id.c_str(), &second), GC_ERR_RESOURCE_IN_USE);
        EXPECT_EQ(producer().IFClose(first), GC_ERR_SUCCESS);
        EXPECT_EQ(producer().IFClose(first), GC_ERR_INVALID_HANDLE);
        const IF_HANDLE again = session.open(id);
        EXPECT_EQ(producer().IFClose(first), GC_ERR_INVALID_HANDLE) << "an old handle stays invalid";
        EXPECT_EQ(producer().IFClose(again), GC_ERR_SUCCESS);
    }
}

TEST_P(ListConformance, AnOpenInterfaceTellsWhatTheListTells)
{
    session.updateInterfaces();
    for (const std::string &id : session.interfaceIds()) {
        const IF_HANDLE handle = session.open(id);
        for (const INTERFACE_INFO_CMD command :
            {INTERFACE_INFO_ID, INTERFACE_INFO_DISPLAYNAME, INTERFACE_INFO_TLTYPE})
            EXPECT_EQ(
                readText(openInterfaceInfo(producer(), handle, command)), session.interfaceText(id, command));
        for (const INTERFACE_INFO_CMD command : {-1, 3, INTERFACE_INFO_CUSTOM_ID}) {
            EXPECT_EQ(codeOf(openInterfaceInfo(producer(), handle, command)), GC_ERR_NOT_IMPLEMENTED);
            EXPECT_EQ(codeOf(listedInterfaceInfo(producer(), session.system(), id, command)),
                GC_ERR_NOT_IMPLEMENTED);
        }
        TL_HANDLE parent = nullptr;
        EXPECT_EQ(producer().IFGetParentTL(handle, &parent), GC_ERR_SUCCESS);
        EXPECT_EQ(parent, session.system());
        EXPECT_EQ(producer().IFGetParentTL(handle, nullptr), GC_ERR_INVALID_PARAMETER);
    }
}

TEST_P(ListConformance, DevicesAreNotAvailableBeforeTheFirstUpdate)
{
    session.updateInterfaces();
    for (const std::string &id : session.interfaceIds()) {
        const IF_HANDLE handle = session.open(id);
        std::uint32_t count = 0;
        EXPECT_EQ(producer().IFGetNumDevices(handle, &count), GC_ERR_NOT_AVAILABLE);
        EXPECT_EQ(codeOf(deviceId(producer(), handle, 0)), GC_ERR_NOT_AVAILABLE);
    }
}

TEST_P(ListConformance, DevicesAreListedByIndexAndById)
{
    for (const IF_HANDLE handle : openAll()) {
        const std::vector<std::string> ids = session.deviceIds(handle);
        expectUniqueIds(ids);
        for (const std::string &id : ids) {
            EXPECT_EQ(session.deviceText(handle, id, DEVICE_INFO_ID), id);
            EXPECT_FALSE(session.deviceText(handle, id, DEVICE_INFO_DISPLAYNAME).empty());
            EXPECT_EQ(tlTypesOfOneTechnology.count(session.deviceText(handle, id, DEVICE_INFO_TLTYPE)), 1U);
            for (const DEVICE_INFO_CMD command : {DEVICE_INFO_VENDOR, DEVICE_INFO_MODEL,
                     DEVICE_INFO_USER_DEFINED_NAME, DEVICE_INFO_SERIAL_NUMBER})
                session.deviceText(handle, id, command); // May be empty; the read itself checks the rules.
            const std::int32_t status
                = readInt32(deviceInfo(producer(), handle, id, DEVICE_INFO_ACCESS_STATUS));
            EXPECT_GE(status, DEVICE_ACCESS_STATUS_UNKNOWN);
            EXPECT_LE(status, DEVICE_ACCESS_STATUS_OPEN_READONLY);
        }
    }
}

TEST_P(ListConformance, DeviceCallsTellWhatIsNotKnownFromWhatDoesNotExist)
{
    for (const IF_HANDLE handle : openAll())
        for (const std::string &id : session.deviceIds(handle)) {
            for (const DEVICE_INFO_CMD command : {DEVICE_INFO_VERSION, DEVICE_INFO_TIMESTAMP_FREQUENCY})
                EXPECT_EQ(codeOf(deviceInfo(producer(), handle, id, command)), GC_ERR_NOT_AVAILABLE);
            for (const DEVICE_INFO_CMD command : {-1, 10, DEVICE_INFO_CUSTOM_ID, INT32_MIN})
                EXPECT_EQ(codeOf(deviceInfo(producer(), handle, id, command)), GC_ERR_NOT_IMPLEMENTED);
        }
}

TEST_P(ListConformance, DeviceCallsRefuseWhatIsNotInTheList)
{
    for (const IF_HANDLE handle : openAll()) {
        const auto count = static_cast<std::uint32_t>(session.deviceIds(handle).size());
        for (const std::uint32_t index : {count, count + 1, UINT32_MAX})
            EXPECT_EQ(codeOf(deviceId(producer(), handle, index)), GC_ERR_INVALID_INDEX) << index;
        for (const char *const id : {"", "no such device", "\xff\xfe"})
            EXPECT_EQ(codeOf(deviceInfo(producer(), handle, id, DEVICE_INFO_ID)), GC_ERR_INVALID_ID);
    }
}

TEST_P(ListConformance, DeviceCallsRefuseMissingArguments)
{
    for (const IF_HANDLE handle : openAll()) {
        INFO_DATATYPE type = INFO_DATATYPE_UNKNOWN;
        std::size_t size = 0;
        EXPECT_EQ(producer().IFGetNumDevices(handle, nullptr), GC_ERR_INVALID_PARAMETER);
        EXPECT_EQ(producer().IFGetDeviceID(handle, 0, nullptr, nullptr), GC_ERR_INVALID_PARAMETER);
        EXPECT_EQ(producer().IFGetDeviceInfo(handle, nullptr, DEVICE_INFO_ID, &type, nullptr, &size),
            GC_ERR_INVALID_PARAMETER);
    }
}

TEST_P(ListConformance, UpdatesTellWhetherTheListChanged)
{
    const bool interfacesChanged = session.updateInterfaces();
    EXPECT_EQ(interfacesChanged, !session.interfaceIds().empty());
    EXPECT_FALSE(session.updateInterfaces());
    EXPECT_EQ(producer().TLUpdateInterfaceList(session.system(), nullptr, 500), GC_ERR_SUCCESS);
    for (const std::string &id : session.interfaceIds()) {
        const IF_HANDLE handle = session.open(id);
        const bool devicesChanged = session.updateDevices(handle);
        EXPECT_EQ(devicesChanged, !session.deviceIds(handle).empty());
        EXPECT_FALSE(session.updateDevices(handle));
        EXPECT_EQ(producer().IFUpdateDeviceList(handle, nullptr, 500), GC_ERR_SUCCESS);
    }
}

TEST_P(ListConformance, AnyTimeLimitIsAccepted)
{
    const std::vector<IF_HANDLE> handles = openAll();
    for (const std::uint64_t timeout : {std::uint64_t(0), std::uint64_t(0xFFFFFFFF), GENTL_INFINITE}) {
        EXPECT_EQ(producer().TLUpdateInterfaceList(session.system(), nullptr, timeout), GC_ERR_SUCCESS);
        for (const IF_HANDLE handle : handles)
            EXPECT_EQ(producer().IFUpdateDeviceList(handle, nullptr, timeout), GC_ERR_SUCCESS);
    }
}

TEST_P(ListConformance, ListsStayBetweenUpdatesAndHandlesAcrossThem)
{
    const std::vector<IF_HANDLE> handles = openAll();
    const std::vector<std::string> interfaces = session.interfaceIds();
    session.updateInterfaces();
    EXPECT_EQ(session.interfaceIds(), interfaces);
    for (const IF_HANDLE handle : handles) {
        const std::vector<std::string> devices = session.deviceIds(handle);
        session.updateInterfaces();
        EXPECT_EQ(session.deviceIds(handle), devices);
    }
}

TEST_P(ListConformance, AClosedInterfaceStartsAnewWhenOpenedAgain)
{
    session.updateInterfaces();
    for (const std::string &id : session.interfaceIds()) {
        const IF_HANDLE first = session.open(id);
        session.updateDevices(first);
        ASSERT_EQ(producer().IFClose(first), GC_ERR_SUCCESS);
        std::uint32_t count = 0;
        EXPECT_EQ(producer().IFGetNumDevices(session.open(id), &count), GC_ERR_NOT_AVAILABLE);
    }
}

TEST_P(ListConformance, ThreadsMayListAndUpdateAtTheSameTime)
{
    const std::vector<IF_HANDLE> handles = openAll();
    std::atomic<int> failures{0};
    const auto check = [&](GC_ERROR code) { failures += code != GC_ERR_SUCCESS; };
    const auto listAll = [&] {
        for (int round = 0; round < 50; ++round) {
            std::uint32_t count = 0;
            check(producer().TLUpdateInterfaceList(session.system(), nullptr, 500));
            check(producer().TLGetNumInterfaces(session.system(), &count));
            for (const IF_HANDLE handle : handles) {
                check(producer().IFUpdateDeviceList(handle, nullptr, 500));
                check(producer().IFGetNumDevices(handle, &count));
                check(codeOf(openInterfaceInfo(producer(), handle, INTERFACE_INFO_ID)));
                for (std::uint32_t index = 0; index < count; ++index)
                    check(codeOf(deviceId(producer(), handle, index)));
            }
        }
    };
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int i = 0; i < 4; ++i)
        threads.emplace_back(listAll);
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(failures, 0);
}
