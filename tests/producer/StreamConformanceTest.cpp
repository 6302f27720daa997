// These tests stream from every camera of a producer, as a consumer does that knows only the standards.

#include "tests/producer/ConformanceTest.h"
#include "tests/producer/PortNodes.h"

#include <memory>

using namespace GenTL;

class StreamConformance : public Conformance
{
protected:
    static constexpr std::uint64_t imageTimeout = 60'000; // Milliseconds; only a hang takes this long.

    std::uint64_t streamSize(DS_HANDLE stream, STREAM_INFO_CMD command) const
    {
        return readLong(infoCall(producer().DSGetInfo, stream, command), INFO_DATATYPE_SIZET);
    }
    std::uint64_t bufferValue(
        DS_HANDLE stream, BUFFER_HANDLE buffer, BUFFER_INFO_CMD command, INFO_DATATYPE type) const
    {
        return readLong(infoCall(producer().DSGetBufferInfo, stream, buffer, command), type);
    }

    /// Fetches, checks and queues this number of images.
    void expectImages(DS_HANDLE stream, EVENT_HANDLE event, const PortNodes &camera, int images) const
    {
        std::uint64_t lastId = 0;
        std::uint64_t lastTime = 0;
        for (int i = 0; i < images; ++i) {
            EVENT_NEW_BUFFER_DATA data{};
            std::size_t size = sizeof data;
            ASSERT_EQ(producer().EventGetData(event, &data, &size, imageTimeout), GC_ERR_SUCCESS);
            const auto sizeOf = [&](BUFFER_INFO_CMD command) {
                return bufferValue(stream, data.BufferHandle, command, INFO_DATATYPE_SIZET);
            };
            EXPECT_EQ(std::to_string(sizeOf(BUFFER_INFO_WIDTH)), camera.read("Width"));
            EXPECT_EQ(std::to_string(sizeOf(BUFFER_INFO_HEIGHT)), camera.read("Height"));
            EXPECT_GT(sizeOf(BUFFER_INFO_SIZE_FILLED), 0U);
            EXPECT_LE(sizeOf(BUFFER_INFO_SIZE_FILLED), sizeOf(BUFFER_INFO_SIZE));
            const std::uint64_t id
                = bufferValue(stream, data.BufferHandle, BUFFER_INFO_FRAMEID, INFO_DATATYPE_UINT64);
            const std::uint64_t time
                = bufferValue(stream, data.BufferHandle, BUFFER_INFO_TIMESTAMP_NS, INFO_DATATYPE_UINT64);
            EXPECT_TRUE(i == 0 || (id > lastId && time > lastTime)) << id << ' ' << time;
            lastId = id;
            lastTime = time;
            EXPECT_EQ(producer().DSQueueBuffer(stream, data.BufferHandle), GC_ERR_SUCCESS);
        }
    }

    void expectStream(DEV_HANDLE device) const
    {
        PORT_HANDLE port = nullptr;
        ASSERT_EQ(producer().DevGetPort(device, &port), GC_ERR_SUCCESS);
        const PortNodes camera(producer(), port);
        const std::string streamId = readId(idCall(producer().DevGetDataStreamID, device, 0));
        DS_HANDLE stream = nullptr;
        ASSERT_EQ(producer().DevOpenDataStream(device, streamId.c_str(), &stream), GC_ERR_SUCCESS);
        for (const char *const name : {"Width", "Height"})
            EXPECT_TRUE(camera.write(name, "64")) << "small, because the builds of the tests are slow";
        EXPECT_TRUE(camera.write("TLParamsLocked", "1"));
        const std::uint64_t payload = streamSize(stream, STREAM_INFO_PAYLOAD_SIZE);
        EXPECT_EQ(std::to_string(payload), camera.read("PayloadSize"));

        std::vector<std::unique_ptr<char[]>> memory(streamSize(stream, STREAM_INFO_BUF_ANNOUNCE_MIN) + 2);
        std::vector<BUFFER_HANDLE> buffers(memory.size());
        for (std::size_t i = 0; i < memory.size(); ++i) {
            memory[i] = std::make_unique<char[]>(payload);
            ASSERT_EQ(producer().DSAnnounceBuffer(stream, memory[i].get(), payload, nullptr, &buffers[i]),
                GC_ERR_SUCCESS);
            EXPECT_EQ(producer().DSQueueBuffer(stream, buffers[i]), GC_ERR_SUCCESS);
        }
        EVENT_HANDLE event = nullptr;
        ASSERT_EQ(producer().GCRegisterEvent(stream, EVENT_NEW_BUFFER, &event), GC_ERR_SUCCESS);
        for (int round = 0; round < 2; ++round) {
            ASSERT_EQ(producer().DSStartAcquisition(stream, ACQ_START_FLAGS_DEFAULT, GENTL_INFINITE),
                GC_ERR_SUCCESS);
            EXPECT_TRUE(camera.execute("AcquisitionStart"));
            expectImages(stream, event, camera, 3);
            EXPECT_EQ(producer().DSFlushQueue(stream, ACQ_QUEUE_ALL_TO_INPUT), GC_ERR_SUCCESS);
            expectImages(stream, event, camera, 3);
            EXPECT_TRUE(camera.execute("AcquisitionStop"));
            EXPECT_EQ(producer().DSStopAcquisition(stream, ACQ_STOP_FLAGS_DEFAULT), GC_ERR_SUCCESS);
            EXPECT_EQ(producer().DSFlushQueue(stream, ACQ_QUEUE_ALL_TO_INPUT), GC_ERR_SUCCESS);
        }
        EXPECT_EQ(producer().DSFlushQueue(stream, ACQ_QUEUE_ALL_DISCARD), GC_ERR_SUCCESS);
        for (const BUFFER_HANDLE buffer : buffers)
            EXPECT_EQ(producer().DSRevokeBuffer(stream, buffer, nullptr, nullptr), GC_ERR_SUCCESS);
        EXPECT_TRUE(camera.write("TLParamsLocked", "0"));
    }
};

TEST_F(StreamConformance, everyCameraStreams)
{
    session.updateInterfaces();
    for (const IF_HANDLE interface : session.openAll()) {
        session.updateDevices(interface);
        for (const std::string &id : session.deviceIds(interface)) {
            SCOPED_TRACE(id);
            DEV_HANDLE device = nullptr;
            ASSERT_EQ(producer().IFOpenDevice(interface, id.c_str(), DEVICE_ACCESS_CONTROL, &device),
                GC_ERR_SUCCESS);
            expectStream(device);
            EXPECT_EQ(producer().DevClose(device), GC_ERR_SUCCESS);
        }
    }
}
