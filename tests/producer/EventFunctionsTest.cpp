// These tests check the events of the test producer's camera and its stream.

#include "tests/producer/CameraSession.h"

#include <future>

using namespace GenTL;

class EventFunctions : public CameraSession
{
protected:
    EventFunctions() { openStream(); }

    InfoCall eventInfo(EVENT_HANDLE event, EVENT_INFO_CMD command) const
    {
        return infoCall(producer.EventGetInfo, event, command);
    }
    InfoCall dataInfo(EVENT_HANDLE event, const std::string &data, EVENT_DATA_INFO_CMD command) const
    {
        return infoCall(
            producer.EventGetDataInfo, event, static_cast<const void *>(data.data()), data.size(), command);
    }

    /// Returns the number of events in the queue and the number that was fired.
    std::pair<std::uint64_t, std::uint64_t> counts(EVENT_HANDLE event) const
    {
        return {readLong(eventInfo(event, EVENT_NUM_IN_QUEUE), INFO_DATATYPE_SIZET),
            readLong(eventInfo(event, EVENT_NUM_FIRED), INFO_DATATYPE_UINT64)};
    }

    /// Takes the data of an event that must be in the queue.
    std::string takeData(EVENT_HANDLE event) const
    {
        std::string data(readLong(eventInfo(event, EVENT_SIZE_MAX), INFO_DATATYPE_SIZET), 'x');
        std::size_t size = data.size();
        EXPECT_EQ(producer.EventGetData(event, data.data(), &size, 0), GC_ERR_SUCCESS);
        data.resize(size);
        return data;
    }

    GC_ERROR discard(EVENT_HANDLE event, std::uint64_t timeout) const
    {
        std::size_t size = 0;
        return producer.EventGetData(event, nullptr, &size, timeout);
    }
};

TEST_F(EventFunctions, onlyEventsThatAreFiredCanBeRegistered)
{
    const std::pair<void *, std::vector<EVENT_TYPE>> offered[] = {
        {session.system(), {}},
        {interface, {}},
        {device, {EVENT_ERROR, EVENT_MODULE}},
        {port, {}},
        {stream, {EVENT_NEW_BUFFER}},
    };
    for (const auto &[source, types] : offered)
        for (EVENT_TYPE type = -1; type <= 6; ++type) {
            const bool isOffered = std::find(types.begin(), types.end(), type) != types.end();
            EVENT_HANDLE event = nullptr;
            EXPECT_EQ(producer.GCUnregisterEvent(source, type), GC_ERR_NOT_INITIALIZED);
            EXPECT_EQ(producer.GCRegisterEvent(source, type, &event),
                isOffered ? GC_ERR_SUCCESS : GC_ERR_NOT_IMPLEMENTED)
                << type;
            if (!isOffered)
                continue;
            EXPECT_EQ(producer.GCRegisterEvent(source, type, &event), GC_ERR_RESOURCE_IN_USE);
            EXPECT_EQ(readNumber(eventInfo(event, EVENT_EVENT_TYPE), INFO_DATATYPE_INT32), type);
            EXPECT_EQ(producer.GCRegisterEvent(event, type, &event), GC_ERR_NOT_IMPLEMENTED);
            EXPECT_EQ(producer.GCUnregisterEvent(source, type), GC_ERR_SUCCESS);
            EXPECT_EQ(codeOf(eventInfo(event, EVENT_EVENT_TYPE)), GC_ERR_INVALID_HANDLE);
            EXPECT_EQ(discard(event, 0), GC_ERR_INVALID_HANDLE);
            registerEvent(source, type);
        }
    EXPECT_EQ(producer.GCRegisterEvent(stream, EVENT_NEW_BUFFER, nullptr), GC_ERR_INVALID_PARAMETER);
}

TEST_F(EventFunctions, newBufferEventNamesItsBuffer)
{
    const BUFFER_HANDLE buffers[] = {queueBuffer(), queueBuffer()};
    EXPECT_EQ(start(), GC_ERR_SUCCESS);
    writeRegister(Registers::deliver, 1);
    const EVENT_HANDLE event = registerEvent(stream, EVENT_NEW_BUFFER);
    EXPECT_EQ(counts(event), std::pair(std::uint64_t(1), std::uint64_t(1))) << "it has waited for the event";
    writeRegister(Registers::deliver, 1);
    for (const BUFFER_HANDLE buffer : buffers) {
        const std::string data = takeData(event);
        const EVENT_NEW_BUFFER_DATA expected{buffer, this};
        EXPECT_EQ(data, std::string(reinterpret_cast<const char *>(&expected), sizeof expected));
        EXPECT_EQ(readLong(dataInfo(event, data, EVENT_DATA_ID), INFO_DATATYPE_PTR),
            reinterpret_cast<std::uintptr_t>(buffer));
        EXPECT_EQ(readLong(dataInfo(event, data, EVENT_DATA_VALUE), INFO_DATATYPE_PTR),
            reinterpret_cast<std::uintptr_t>(this));
        EXPECT_EQ(codeOf(dataInfo(event, data, EVENT_DATA_NUMID)), GC_ERR_NOT_IMPLEMENTED);
        EXPECT_EQ(codeOf(dataInfo(event, data.substr(1), EVENT_DATA_ID)), GC_ERR_INVALID_PARAMETER);
    }
    EXPECT_EQ(counts(event), std::pair(std::uint64_t(0), std::uint64_t(2)));
    EXPECT_EQ(readLong(eventInfo(event, EVENT_SIZE_MAX), INFO_DATATYPE_SIZET), 16U);
    EXPECT_EQ(readLong(eventInfo(event, EVENT_INFO_DATA_SIZE_MAX), INFO_DATATYPE_SIZET), 8U);
    EXPECT_EQ(codeOf(eventInfo(event, 5)), GC_ERR_NOT_IMPLEMENTED);
    EXPECT_EQ(producer.EventGetData(event, nullptr, nullptr, 0), GC_ERR_INVALID_PARAMETER);
}

TEST_F(EventFunctions, flushAndUnregisteringDiscardFilledBuffers)
{
    queueBuffer();
    const EVENT_HANDLE event = registerEvent(stream, EVENT_NEW_BUFFER);
    EXPECT_EQ(start(), GC_ERR_SUCCESS);
    writeRegister(Registers::deliver, 1);
    EXPECT_EQ(producer.EventFlush(event), GC_ERR_SUCCESS);
    EXPECT_EQ(discard(event, 0), GC_ERR_TIMEOUT);
    EXPECT_EQ(producer.DSFlushQueue(stream, ACQ_QUEUE_UNQUEUED_TO_INPUT), GC_ERR_SUCCESS);
    writeRegister(Registers::deliver, 1);
    EXPECT_EQ(producer.GCUnregisterEvent(stream, EVENT_NEW_BUFFER), GC_ERR_SUCCESS);
    EXPECT_EQ(readLong(streamInfo(STREAM_INFO_NUM_AWAIT_DELIVERY), INFO_DATATYPE_SIZET), 0U);
}

TEST_F(EventFunctions, lossOfTheCameraFiresEachEventOnce)
{
    const EVENT_HANDLE error = registerEvent(device, EVENT_ERROR);
    const EVENT_HANDLE module = registerEvent(device, EVENT_MODULE);
    EXPECT_EQ(discard(module, 0), GC_ERR_TIMEOUT);
    std::future<GC_ERROR> wait = std::async(std::launch::async, [&] { return discard(module, 60000); });
    writeRegister(Registers::lose, 1);
    writeRegister(Registers::lose, 1);
    EXPECT_EQ(wait.get(), GC_ERR_SUCCESS);
    EXPECT_EQ(counts(module), std::pair(std::uint64_t(0), std::uint64_t(1)));
    EXPECT_EQ(counts(error), std::pair(std::uint64_t(1), std::uint64_t(1)));
    const std::string data = takeData(error);
    EXPECT_EQ(readNumber(dataInfo(error, data, EVENT_DATA_ID), INFO_DATATYPE_INT32), GC_ERR_IO);
    EXPECT_EQ(readString(dataInfo(error, data, EVENT_DATA_VALUE)), "The connection to the camera is lost.");
    EXPECT_EQ(codeOf(dataInfo(error, data, EVENT_DATA_NUMID)), GC_ERR_NOT_IMPLEMENTED);
    EXPECT_EQ(discard(error, 0), GC_ERR_TIMEOUT);
}

TEST_F(EventFunctions, eventThatIsRegisteredAfterTheLossIsFiredAtOnce)
{
    writeRegister(Registers::lose, 1);
    const EVENT_HANDLE module = registerEvent(device, EVENT_MODULE);
    const std::string data = takeData(module);
    EXPECT_EQ(readString(dataInfo(module, data, EVENT_DATA_ID)), "9001");
    EXPECT_EQ(readLong(dataInfo(module, data, EVENT_DATA_NUMID), INFO_DATATYPE_UINT64), 0x9001U);
    EXPECT_EQ(readBuffer(dataInfo(module, data, EVENT_DATA_VALUE)), data);
    const EVENT_HANDLE error = registerEvent(device, EVENT_ERROR);
    EXPECT_EQ(producer.EventFlush(error), GC_ERR_SUCCESS);
    EXPECT_EQ(discard(error, 0), GC_ERR_TIMEOUT);
}

TEST_F(EventFunctions, killEndsOneWaitOfAnyEvent)
{
    for (const EVENT_HANDLE event :
        {registerEvent(device, EVENT_MODULE), registerEvent(stream, EVENT_NEW_BUFFER)}) {
        std::future<GC_ERROR> wait = std::async(std::launch::async, [&] { return discard(event, 60000); });
        EXPECT_EQ(producer.EventKill(event), GC_ERR_SUCCESS);
        EXPECT_EQ(wait.get(), GC_ERR_ABORT);
        EXPECT_EQ(discard(event, 0), GC_ERR_TIMEOUT);
    }
}
