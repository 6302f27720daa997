// These tests check the code that all our producers share, with a device source that follows a script. The
// shared code is linked into this program.

#include "sdk/gentl/ListChangeExtension.h"
#include "sdk/producer/DeviceSource.h"
#include "tests/producer/ProducerSession.h"

#include <atomic>
#include <chrono>
#include <future>
#include <new>
#include <thread>

using namespace GenTL;

namespace {

using Ids = std::vector<std::string>;
using ListDevices = std::function<Ids(const std::string &interfaceId)>;

/// Defines what the device source does. Each test changes the members that it needs.
struct Script
{
    std::function<void()> start = [] {};
    std::function<Ids()> interfaces = [] { return Ids{"one", "two"}; };
    std::string interfaceName = "Interface";
    ListDevices devices = [](const std::string &) { return Ids{}; };
    std::string version;
    int listChangedDescriptor = -1;
    std::function<void(std::chrono::milliseconds)> noteTimeout = [](std::chrono::milliseconds) {};
};

Script script;

class ScriptedSource final : public DeviceSource
{
public:
    ProducerIdentity identity() const override { return {}; }

    std::vector<InterfaceRecord> updateInterfaces() override
    {
        std::vector<InterfaceRecord> records;
        for (const std::string &id : script.interfaces())
            records.push_back({id, script.interfaceName, "Custom"});
        return records;
    }

    std::vector<DeviceRecord> updateDevices(
        const std::string &interfaceId, std::chrono::milliseconds timeout) override
    {
        script.noteTimeout(timeout);
        std::vector<DeviceRecord> records;
        for (const std::string &id : script.devices(interfaceId))
            records.push_back({id, "Vendor", "Model", "GEV", "Shown", "User", "Serial",
                DEVICE_ACCESS_STATUS_BUSY, script.version});
        return records;
    }

    int listChangedDescriptor() const override { return script.listChangedDescriptor; }
};

} // namespace

std::unique_ptr<DeviceSource> createDeviceSource(const std::filesystem::path &)
{
    script.start();
    return std::make_unique<ScriptedSource>();
}

class ScriptedProducer : public testing::Test
{
protected:
    ScriptedProducer() { session.updateInterfaces(); }
    ~ScriptedProducer() override { script = Script(); }

    const LoadedProducer &producer() const { return session.producer(); }
    GC_ERROR update(IF_HANDLE handle) const { return producer().IFUpdateDeviceList(handle, nullptr, 500); }

    const ProducerSession session;
};

TEST_F(ScriptedProducer, failedSearchKeepsTheList)
{
    const IF_HANDLE handle = session.open("one");
    script.devices = [](const std::string &) { return Ids{"kept"}; };
    ASSERT_EQ(update(handle), GC_ERR_SUCCESS);
    script.devices = [](const std::string &) -> Ids { throw std::runtime_error("No devices."); };
    EXPECT_EQ(update(handle), GC_ERR_ERROR);
    EXPECT_EQ(session.lastError(), std::pair(GC_ERR_ERROR, std::string("No devices.")));
    EXPECT_EQ(session.deviceIds(handle), Ids{"kept"});

    script.interfaces = []() -> Ids { throw std::runtime_error("No interfaces."); };
    EXPECT_EQ(producer().TLUpdateInterfaceList(session.system(), nullptr, 500), GC_ERR_ERROR);
    EXPECT_EQ(session.lastError().second, "No interfaces.");
    EXPECT_EQ(session.interfaceIds(), (Ids{"one", "two"}));
}

TEST_F(ScriptedProducer, exceptionOfAnyTypeBecomesAnErrorCode)
{
    const std::tuple<ListDevices, GC_ERROR, std::string> expected[] = {
        {[](const std::string &) -> Ids { throw std::bad_alloc(); }, GC_ERR_OUT_OF_MEMORY, "Out of memory."},
        {[](const std::string &) -> Ids { throw 42; }, GC_ERR_ERROR, "Unknown exception."},
        {[](const std::string &) -> Ids { throw std::runtime_error(std::string(100000, 'x')); }, GC_ERR_ERROR,
            std::string(511, 'x')},
    };
    const IF_HANDLE handle = session.open("one");
    for (const auto &[devices, code, message] : expected) {
        script.devices = devices;
        EXPECT_EQ(update(handle), code);
        EXPECT_EQ(session.lastError(), std::pair(code, message));
    }
}

TEST_F(ScriptedProducer, producerStaysUninitialisedIfItsSourceCannotStart)
{
    ASSERT_EQ(producer().GCCloseLib(), GC_ERR_SUCCESS);
    script.start = [] { throw std::runtime_error("The source cannot start."); };
    EXPECT_EQ(producer().GCInitLib(), GC_ERR_ERROR);
    EXPECT_EQ(producer().GCCloseLib(), GC_ERR_NOT_INITIALIZED);
    script.start = [] {};
    EXPECT_EQ(producer().GCInitLib(), GC_ERR_SUCCESS);
}

TEST_F(ScriptedProducer, entriesWithAnEmptyOrRepeatedIdAreOmitted)
{
    const Ids doubtful{"twice", "", "twice", std::string("cut\0here", 8), "cut", "last"};
    script.interfaces = [&] { return doubtful; };
    script.devices = [&](const std::string &) { return doubtful; };
    session.updateInterfaces();
    EXPECT_EQ(session.interfaceIds(), (Ids{"twice", "cut", "last"}));
    const IF_HANDLE handle = session.open("last");
    session.updateDevices(handle);
    EXPECT_EQ(session.deviceIds(handle), (Ids{"twice", "cut", "last"}));
}

TEST_F(ScriptedProducer, deviceReportsTheFieldsOfItsRecord)
{
    script.devices = [](const std::string &) { return Ids{"a"}; };
    const IF_HANDLE handle = session.open("one");
    session.updateDevices(handle);
    Ids strings;
    for (const DEVICE_INFO_CMD command :
        {DEVICE_INFO_ID, DEVICE_INFO_VENDOR, DEVICE_INFO_MODEL, DEVICE_INFO_TLTYPE, DEVICE_INFO_DISPLAYNAME,
            DEVICE_INFO_USER_DEFINED_NAME, DEVICE_INFO_SERIAL_NUMBER})
        strings.push_back(session.deviceString(handle, "a", command));
    EXPECT_EQ(strings, (Ids{"a", "Vendor", "Model", "GEV", "Shown", "User", "Serial"}));
    const auto status = infoCall(producer().IFGetDeviceInfo, handle, "a", DEVICE_INFO_ACCESS_STATUS);
    EXPECT_EQ(readNumber(status, INFO_DATATYPE_INT32), DEVICE_ACCESS_STATUS_BUSY);
    EXPECT_EQ(
        codeOf(infoCall(producer().IFGetDeviceInfo, handle, "a", DEVICE_INFO_VERSION)), GC_ERR_NOT_AVAILABLE);
    script.version = "1.2";
    session.updateDevices(handle);
    EXPECT_EQ(session.deviceString(handle, "a", DEVICE_INFO_VERSION), "1.2");
}

TEST_F(ScriptedProducer, sourceReceivesABoundedTimeout)
{
    using std::chrono::milliseconds;
    const IF_HANDLE handle = session.open("one");
    milliseconds last{-1};
    script.noteTimeout = [&](milliseconds timeout) { last = timeout; };
    const std::pair<std::uint64_t, milliseconds> expected[] = {{0, milliseconds(0)}, {200, milliseconds(200)},
        {60000, milliseconds(60000)}, {60001, milliseconds(60000)}, {GENTL_INFINITE, milliseconds(60000)}};
    for (const auto &[timeout, received] : expected) {
        EXPECT_EQ(producer().IFUpdateDeviceList(handle, nullptr, timeout), GC_ERR_SUCCESS);
        EXPECT_EQ(last, received);
    }
}

TEST_F(ScriptedProducer, listChangedDescriptorIsTheSourcesWhileTheLibraryIsInitialised)
{
    const auto descriptor
        = reinterpret_cast<ListChangedFunction *>(producer().symbol(listChangedFunctionName));
    EXPECT_EQ(descriptor(), -1) << "the source has none";
    script.listChangedDescriptor = 7;
    EXPECT_EQ(descriptor(), 7);
    ASSERT_EQ(producer().GCCloseLib(), GC_ERR_SUCCESS);
    EXPECT_EQ(descriptor(), -1);
    ASSERT_EQ(producer().GCInitLib(), GC_ERR_SUCCESS);
}

TEST(ProducerRecords, recordsDifferIfAnyFieldDiffers)
{
    for (const auto field : {&DeviceRecord::id, &DeviceRecord::vendor, &DeviceRecord::model,
             &DeviceRecord::tlType, &DeviceRecord::displayName, &DeviceRecord::userName,
             &DeviceRecord::serial, &DeviceRecord::version}) {
        DeviceRecord device;
        device.*field = "other";
        EXPECT_FALSE(device == DeviceRecord());
    }
    EXPECT_FALSE((DeviceRecord{"", "", "", "", "", "", "", DEVICE_ACCESS_STATUS_BUSY, ""} == DeviceRecord()));
    EXPECT_TRUE(DeviceRecord() == DeviceRecord());
    for (const auto field : {&InterfaceRecord::id, &InterfaceRecord::displayName, &InterfaceRecord::tlType}) {
        InterfaceRecord interface;
        interface.*field = "other";
        EXPECT_FALSE(interface == InterfaceRecord());
    }
}

TEST_F(ScriptedProducer, openInterfaceReportsUpdatesUntilItsEntryDisappears)
{
    const IF_HANDLE handle = session.open("one");
    script.interfaceName = "New name";
    EXPECT_EQ(session.openInterfaceString(handle, INTERFACE_INFO_DISPLAYNAME), "Interface");
    EXPECT_TRUE(session.updateInterfaces());
    EXPECT_EQ(session.openInterfaceString(handle, INTERFACE_INFO_DISPLAYNAME), "New name");

    script.interfaces = [] { return Ids{}; };
    EXPECT_TRUE(session.updateInterfaces());
    EXPECT_EQ(session.openInterfaceString(handle, INTERFACE_INFO_DISPLAYNAME), "Interface");
    EXPECT_FALSE(session.updateDevices(handle));
    IF_HANDLE second = nullptr;
    EXPECT_EQ(producer().TLOpenInterface(session.system(), "one", &second), GC_ERR_RESOURCE_IN_USE);
}

TEST_F(ScriptedProducer, twoInterfacesCanBeSearchedAtTheSameTime)
{
    std::promise<void> started[2];
    script.devices = [&](const std::string &id) { // Each search waits until the other one has started.
        const int own = id == "one" ? 0 : 1;
        started[own].set_value();
        const auto other = started[1 - own].get_future().wait_for(std::chrono::minutes(1));
        return Ids{other == std::future_status::ready ? "met" : "alone"};
    };
    const IF_HANDLE one = session.open("one");
    const IF_HANDLE two = session.open("two");
    std::future<GC_ERROR> elsewhere = std::async(std::launch::async, [&] { return update(one); });
    EXPECT_EQ(update(two), GC_ERR_SUCCESS);
    EXPECT_EQ(elsewhere.get(), GC_ERR_SUCCESS);
    EXPECT_EQ(session.deviceIds(one), Ids{"met"});
    EXPECT_EQ(session.deviceIds(two), Ids{"met"});
}

TEST_F(ScriptedProducer, sameInterfaceIsNeverSearchedTwiceAtTheSameTime)
{
    std::atomic<int> searches{0};
    std::atomic<bool> hasOverlapped{false};
    script.devices = [&](const std::string &) {
        if (searches.fetch_add(1) != 0)
            hasOverlapped = true;
        std::this_thread::yield();
        searches.fetch_sub(1);
        return Ids{};
    };
    const IF_HANDLE handle = session.open("one");
    std::vector<std::future<void>> threads;
    for (int i = 0; i < 4; ++i)
        threads.push_back(std::async(std::launch::async, [&] {
            for (int round = 0; round < 200; ++round)
                EXPECT_EQ(update(handle), GC_ERR_SUCCESS);
        }));
    threads.clear(); // Waits for all threads.
    EXPECT_FALSE(hasOverlapped);
}
