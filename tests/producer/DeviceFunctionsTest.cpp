// These tests check how devices are opened and closed, with the camera of the test producer.

#include "tests/producer/CameraSession.h"

#include <future>

using namespace GenTL;

namespace {

using NamedCode = std::pair<std::string, GC_ERROR>;

/// Calls every function whose only input is a handle, with valid other arguments.
std::vector<NamedCode> callAll(const LoadedProducer &producer, void *handle)
{
    std::uint32_t count = 1;
    std::size_t size = 0;
    std::size_t entries = 0;
    void *output = nullptr;
    char byte = 0;
    PORT_REGISTER_STACK_ENTRY entry{};
    return {
        {"GCReadPort", producer.GCReadPort(handle, 0, &byte, &size)},
        {"GCWritePort", producer.GCWritePort(handle, 0, &byte, &size)},
        {"GCGetPortURL", codeOf(idCall(producer.GCGetPortURL, handle))},
        {"GCGetPortInfo", codeOf(infoCall(producer.GCGetPortInfo, handle, PORT_INFO_ID))},
        {"GCGetNumPortURLs", producer.GCGetNumPortURLs(handle, &count)},
        {"GCGetPortURLInfo", codeOf(infoCall(producer.GCGetPortURLInfo, handle, 0, URL_INFO_URL))},
        {"GCReadPortStacked", producer.GCReadPortStacked(handle, &entry, &entries)},
        {"GCWritePortStacked", producer.GCWritePortStacked(handle, &entry, &entries)},
        {"GCRegisterEvent", producer.GCRegisterEvent(handle, EVENT_NEW_BUFFER, &output)},
        {"GCUnregisterEvent", producer.GCUnregisterEvent(handle, EVENT_NEW_BUFFER)},
        {"EventGetData", producer.EventGetData(handle, nullptr, &size, 0)},
        {"EventGetDataInfo",
            codeOf(infoCall(producer.EventGetDataInfo, handle, static_cast<const void *>(&byte),
                std::size_t(1), EVENT_DATA_ID))},
        {"EventGetInfo", codeOf(infoCall(producer.EventGetInfo, handle, EVENT_EVENT_TYPE))},
        {"EventFlush", producer.EventFlush(handle)},
        {"EventKill", producer.EventKill(handle)},
        {"IFOpenDevice", producer.IFOpenDevice(handle, "camera", DEVICE_ACCESS_CONTROL, &output)},
        {"DevGetPort", producer.DevGetPort(handle, &output)},
        {"DevGetNumDataStreams", producer.DevGetNumDataStreams(handle, &count)},
        {"DevGetDataStreamID", codeOf(idCall(producer.DevGetDataStreamID, handle, 0))},
        {"DevOpenDataStream", producer.DevOpenDataStream(handle, "any", &output)},
        {"DevGetInfo", codeOf(infoCall(producer.DevGetInfo, handle, DEVICE_INFO_ID))},
        {"DevGetParentIF", producer.DevGetParentIF(handle, &output)},
        {"DSAnnounceBuffer", producer.DSAnnounceBuffer(handle, &byte, 1, nullptr, &output)},
        {"DSAllocAndAnnounceBuffer", producer.DSAllocAndAnnounceBuffer(handle, 1, nullptr, &output)},
        {"DSFlushQueue", producer.DSFlushQueue(handle, ACQ_QUEUE_ALL_DISCARD)},
        {"DSStartAcquisition", producer.DSStartAcquisition(handle, 0, 1)},
        {"DSStopAcquisition", producer.DSStopAcquisition(handle, 0)},
        {"DSGetInfo", codeOf(infoCall(producer.DSGetInfo, handle, STREAM_INFO_ID))},
        {"DSGetBufferID", producer.DSGetBufferID(handle, 0, &output)},
        {"DSRevokeBuffer", producer.DSRevokeBuffer(handle, handle, nullptr, nullptr)},
        {"DSQueueBuffer", producer.DSQueueBuffer(handle, handle)},
        {"DSGetBufferInfo", codeOf(infoCall(producer.DSGetBufferInfo, handle, handle, BUFFER_INFO_BASE))},
        {"DSGetBufferChunkData", producer.DSGetBufferChunkData(handle, handle, nullptr, &size)},
        {"DSGetParentDev", producer.DSGetParentDev(handle, &output)},
        {"DSGetNumBufferParts", producer.DSGetNumBufferParts(handle, handle, &count)},
        {"DSGetBufferPartInfo",
            codeOf(infoCall(producer.DSGetBufferPartInfo, handle, handle, 0, BUFFER_PART_INFO_BASE))},
        {"DSClose", producer.DSClose(handle)},
        {"DevClose", producer.DevClose(handle)},
    };
}

void expectAll(const std::vector<NamedCode> &calls, GC_ERROR expected)
{
    for (const auto &[name, code] : calls)
        EXPECT_EQ(code, expected) << name;
}

} // namespace

using DeviceFunctions = CameraSession;

TEST_F(DeviceFunctions, everyCallFailsIfTheLibraryIsNotInitialised)
{
    EXPECT_EQ(producer.GCCloseLib(), GC_ERR_SUCCESS);
    expectAll(callAll(producer, device), GC_ERR_NOT_INITIALIZED);
    EXPECT_EQ(producer.GCInitLib(), GC_ERR_SUCCESS);
    expectAll(callAll(producer, device), GC_ERR_INVALID_HANDLE);
    expectAll(callAll(producer, nullptr), GC_ERR_INVALID_HANDLE);
}

TEST_F(DeviceFunctions, openingReportsWhyItFails)
{
    const std::tuple<const char *, DEVICE_ACCESS_FLAGS, GC_ERROR> expected[] = {
        {"camera", DEVICE_ACCESS_CONTROL, GC_ERR_RESOURCE_IN_USE},
        {"camera", DEVICE_ACCESS_READONLY, GC_ERR_RESOURCE_IN_USE},
        {"nobody", DEVICE_ACCESS_CONTROL, GC_ERR_INVALID_ID},
        {"in use", DEVICE_ACCESS_EXCLUSIVE, GC_ERR_ACCESS_DENIED},
        {"in use", DEVICE_ACCESS_EXCLUSIVE, GC_ERR_ACCESS_DENIED}, // A failure leaves nothing open.
        {"control only", DEVICE_ACCESS_UNKNOWN, GC_ERR_INVALID_PARAMETER},
        {"control only", DEVICE_ACCESS_NONE, GC_ERR_INVALID_PARAMETER},
        {"control only", 5, GC_ERR_INVALID_PARAMETER},
        {nullptr, DEVICE_ACCESS_CONTROL, GC_ERR_INVALID_PARAMETER},
        {"control only", DEVICE_ACCESS_EXCLUSIVE, GC_ERR_SUCCESS},
    };
    for (const auto &[id, access, code] : expected) {
        DEV_HANDLE handle = nullptr;
        EXPECT_EQ(producer.IFOpenDevice(interface, id, access, &handle), code);
    }
    EXPECT_EQ(
        producer.IFOpenDevice(interface, "in use", DEVICE_ACCESS_CONTROL, nullptr), GC_ERR_INVALID_PARAMETER);
    DEV_HANDLE handle = nullptr;
    EXPECT_EQ(
        producer.IFOpenDevice(interface, "in use", DEVICE_ACCESS_CONTROL, &handle), GC_ERR_ACCESS_DENIED);
    EXPECT_EQ(session.lastError().second, "Somebody else uses the camera.");
}

TEST_F(DeviceFunctions, openDeviceReportsItsInformation)
{
    const std::pair<DEVICE_INFO_CMD, const char *> expected[] = {{DEVICE_INFO_ID, "camera"},
        {DEVICE_INFO_VENDOR, "Camera Vendor"}, {DEVICE_INFO_MODEL, "Camera Model"},
        {DEVICE_INFO_TLTYPE, TLTypeGEVName}, {DEVICE_INFO_DISPLAYNAME, "Shown"},
        {DEVICE_INFO_USER_DEFINED_NAME, "User"}, {DEVICE_INFO_SERIAL_NUMBER, "Serial"}};
    for (const auto &[command, text] : expected)
        EXPECT_EQ(readString(deviceInfo(command)), text);
    EXPECT_EQ(readLong(deviceInfo(DEVICE_INFO_TIMESTAMP_FREQUENCY), INFO_DATATYPE_UINT64), 1000U);
    EXPECT_EQ(codeOf(deviceInfo(DEVICE_INFO_VERSION)), GC_ERR_NOT_AVAILABLE);
    for (const DEVICE_INFO_CMD command : {-1, 10, DEVICE_INFO_CUSTOM_ID})
        EXPECT_EQ(codeOf(deviceInfo(command)), GC_ERR_NOT_IMPLEMENTED);
    EXPECT_EQ(
        producer.DevGetInfo(device, DEVICE_INFO_ID, nullptr, nullptr, nullptr), GC_ERR_INVALID_PARAMETER);
    device = openDevice("control only");
    EXPECT_EQ(codeOf(deviceInfo(DEVICE_INFO_TIMESTAMP_FREQUENCY)), GC_ERR_NOT_AVAILABLE) << "it has no clock";
}

TEST_F(DeviceFunctions, accessStatusOfAnOpenDeviceIsCurrent)
{
    const auto listed = infoCall(producer.IFGetDeviceInfo, interface, "camera", DEVICE_INFO_ACCESS_STATUS);
    const auto expectStatus = [&](DEVICE_ACCESS_STATUS status) {
        EXPECT_EQ(readNumber(deviceInfo(DEVICE_INFO_ACCESS_STATUS), INFO_DATATYPE_INT32), status);
        EXPECT_EQ(readNumber(listed, INFO_DATATYPE_INT32), status);
    };
    expectStatus(DEVICE_ACCESS_STATUS_OPEN_READWRITE);
    EXPECT_EQ(producer.DevClose(device), GC_ERR_SUCCESS);
    EXPECT_EQ(readNumber(listed, INFO_DATATYPE_INT32), DEVICE_ACCESS_STATUS_READWRITE);
    EXPECT_EQ(producer.IFOpenDevice(interface, "camera", DEVICE_ACCESS_READONLY, &device), GC_ERR_SUCCESS);
    expectStatus(DEVICE_ACCESS_STATUS_OPEN_READONLY);
    EXPECT_EQ(producer.DevClose(device), GC_ERR_SUCCESS);
    device = openDevice("camera");
    port = portOf(device);
    writeRegister(Registers::lose, 1);
    expectStatus(DEVICE_ACCESS_STATUS_NOACCESS);
}

TEST_F(DeviceFunctions, parentsAreTheHandlesThatTheConsumerHas)
{
    openStream();
    void *parent = nullptr;
    EXPECT_EQ(producer.DSGetParentDev(stream, &parent), GC_ERR_SUCCESS);
    EXPECT_EQ(parent, device);
    EXPECT_EQ(producer.DevGetParentIF(device, &parent), GC_ERR_SUCCESS);
    EXPECT_EQ(parent, interface);
    EXPECT_EQ(portOf(device), port) << "asking again returns the same";
    EXPECT_EQ(producer.DSGetParentDev(stream, nullptr), GC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(producer.DevGetParentIF(device, nullptr), GC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(producer.DevGetPort(device, nullptr), GC_ERR_INVALID_PARAMETER);
}

TEST_F(DeviceFunctions, streamsAreListedAndOpenedOnce)
{
    std::uint32_t count = 0;
    EXPECT_EQ(producer.DevGetNumDataStreams(device, &count), GC_ERR_SUCCESS);
    EXPECT_EQ(count, 1U);
    EXPECT_EQ(producer.DevGetNumDataStreams(device, nullptr), GC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(codeOf(idCall(producer.DevGetDataStreamID, device, 1)), GC_ERR_INVALID_INDEX);
    EXPECT_EQ(producer.DevGetDataStreamID(device, 0, nullptr, nullptr), GC_ERR_INVALID_PARAMETER);
    const std::string id = streamId();
    EXPECT_EQ(producer.DevOpenDataStream(device, "no such ID", &stream), GC_ERR_INVALID_ID);
    EXPECT_EQ(producer.DevOpenDataStream(device, nullptr, &stream), GC_ERR_INVALID_PARAMETER);
    EXPECT_EQ(producer.DevOpenDataStream(device, id.c_str(), nullptr), GC_ERR_INVALID_PARAMETER);
    openStream();
    DS_HANDLE second = nullptr;
    EXPECT_EQ(producer.DevOpenDataStream(device, id.c_str(), &second), GC_ERR_RESOURCE_IN_USE);
    EXPECT_EQ(producer.DSClose(stream), GC_ERR_SUCCESS);
    EXPECT_EQ(producer.DSClose(stream), GC_ERR_INVALID_HANDLE);
    openStream();
}

TEST_F(DeviceFunctions, cameraWithoutStreamHasNone)
{
    const DEV_HANDLE other = openDevice("control only");
    std::uint32_t count = 1;
    DS_HANDLE opened = nullptr;
    EXPECT_EQ(producer.DevGetNumDataStreams(other, &count), GC_ERR_SUCCESS);
    EXPECT_EQ(count, 0U);
    EXPECT_EQ(codeOf(idCall(producer.DevGetDataStreamID, other, 0)), GC_ERR_NOT_IMPLEMENTED);
    EXPECT_EQ(producer.DevOpenDataStream(other, streamId().c_str(), &opened), GC_ERR_NOT_IMPLEMENTED);
}

/// Closes one of the modules above an event that is being waited for.
struct ClosedModule
{
    const char *name;
    std::function<GC_ERROR(const LoadedProducer &, DS_HANDLE, DEV_HANDLE, IF_HANDLE, TL_HANDLE)> close;
    /// Closed handles of: event of the stream, stream, event of the device, port, device, interface.
    std::size_t closedHandles;
};

void PrintTo(const ClosedModule &module, std::ostream *output)
{
    *output << module.name;
}

class ClosingModules : public CameraSession, public testing::WithParamInterface<ClosedModule>
{ };

INSTANTIATE_TEST_SUITE_P(DeviceFunctions, ClosingModules,
    testing::Values(ClosedModule{"stream",
                        [](const LoadedProducer &producer, auto stream, auto, auto, auto) {
                            return producer.DSClose(stream);
                        },
                        2},
        ClosedModule{"device",
            [](const LoadedProducer &producer, auto, auto device, auto, auto) {
                return producer.DevClose(device);
            },
            5},
        ClosedModule{"interface",
            [](const LoadedProducer &producer, auto, auto, auto interface, auto) {
                return producer.IFClose(interface);
            },
            6},
        ClosedModule{"system",
            [](const LoadedProducer &producer, auto, auto, auto, auto system) {
                return producer.TLClose(system);
            },
            6}));

TEST_P(ClosingModules, closesEverythingBelow)
{
    openStream();
    queueBuffer();
    EXPECT_EQ(start(), GC_ERR_SUCCESS);
    writeRegister(Registers::take, 1); // The camera keeps the buffer until it is stopped.
    void *const handles[] = {registerEvent(stream, EVENT_NEW_BUFFER), stream,
        registerEvent(device, EVENT_MODULE), port, device, interface};
    const auto wait = [&](EVENT_HANDLE event) {
        std::size_t size = 0;
        return producer.EventGetData(event, nullptr, &size, 60000);
    };
    std::future<GC_ERROR> streamWait = std::async(std::launch::async, wait, handles[0]);
    std::future<GC_ERROR> deviceWait = std::async(std::launch::async, wait, handles[2]);

    EXPECT_EQ(GetParam().close(producer, stream, device, interface, session.system()), GC_ERR_SUCCESS);
    for (std::size_t i = 0; i < GetParam().closedHandles; ++i)
        expectAll(callAll(producer, handles[i]), GC_ERR_INVALID_HANDLE);
    const bool isDeviceClosed = GetParam().closedHandles > 2;
    EXPECT_EQ(producer.GCUnregisterEvent(device, EVENT_MODULE),
        isDeviceClosed ? GC_ERR_INVALID_HANDLE : GC_ERR_SUCCESS);
    for (std::future<GC_ERROR> *const waiting : {&streamWait, &deviceWait}) {
        const GC_ERROR code = waiting->get();
        EXPECT_TRUE(code == GC_ERR_ABORT || code == GC_ERR_INVALID_HANDLE) << code;
    }
}

TEST_F(DeviceFunctions, closedStreamIsStopped)
{
    openStream();
    queueBuffer();
    EXPECT_EQ(start(), GC_ERR_SUCCESS);
    EXPECT_EQ(readRegister(Registers::isStarted), 1U);
    EXPECT_EQ(producer.DSClose(stream), GC_ERR_SUCCESS);
    EXPECT_EQ(readRegister(Registers::isStarted), 0U);
}

TEST_F(DeviceFunctions, closedDeviceReleasesTheCamera)
{
    openStream();
    EXPECT_EQ(producer.DevClose(device), GC_ERR_SUCCESS);
    EXPECT_EQ(producer.DevClose(device), GC_ERR_INVALID_HANDLE);
    port = portOf(openDevice("control only"));
    EXPECT_EQ(readRegister(Registers::openCameras), 1U);
    device = openDevice("camera");
    EXPECT_EQ(readRegister(Registers::openCameras), 2U);
}

TEST_F(DeviceFunctions, registersAreAccessedByOneThreadAtATime)
{
    std::vector<std::future<void>> threads;
    for (int i = 0; i < 4; ++i)
        threads.push_back(std::async(std::launch::async, [this] {
            for (int round = 0; round < 300; ++round) {
                writeRegister(Registers::memory, 1);
                EXPECT_EQ(readRegister(Registers::memory), 1U);
            }
        }));
    threads.clear(); // Waits for all threads.
    EXPECT_EQ(readRegister(Registers::overlaps), 0U);
}

TEST_F(DeviceFunctions, slowRegisterAccessDoesNotDelayTheStream)
{
    openStream();
    const EVENT_HANDLE event = registerEvent(stream, EVENT_NEW_BUFFER);
    std::future<std::uint64_t> access
        = std::async(std::launch::async, [this] { return readRegister(Registers::gate); });
    // The status may change between two reads, so each is read once.
    const auto accessStatus = [info = deviceInfo(DEVICE_INFO_ACCESS_STATUS)] {
        std::int32_t status = 0;
        std::size_t size = sizeof status;
        INFO_DATATYPE type = INFO_DATATYPE_UNKNOWN;
        EXPECT_EQ(info(&type, &status, &size), GC_ERR_SUCCESS);
        return status;
    };
    while (accessStatus() != DEVICE_ACCESS_STATUS_CUSTOM_ID)
        std::this_thread::yield();

    queueBuffer();
    EXPECT_EQ(start(), GC_ERR_SUCCESS);
    EXPECT_EQ(readLong(streamInfo(STREAM_INFO_PAYLOAD_SIZE), INFO_DATATYPE_SIZET), 64U);
    BUFFER_HANDLE buffer = nullptr;
    EXPECT_EQ(fetch(event, &buffer), GC_ERR_TIMEOUT);
    EXPECT_EQ(producer.DSStopAcquisition(stream, ACQ_STOP_FLAGS_DEFAULT), GC_ERR_SUCCESS);
    EXPECT_EQ(producer.DSClose(stream), GC_ERR_SUCCESS);

    EXPECT_EQ(access.wait_for(std::chrono::seconds(0)), std::future_status::timeout);
    while (access.wait_for(std::chrono::seconds(0)) != std::future_status::ready)
        session.updateDevices(interface); // Opens the gate.
}
