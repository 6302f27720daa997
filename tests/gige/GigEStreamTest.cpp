// This test opens Aravis's fake camera with the built producer, as any consumer does. It must run in a
// network namespace that contains only lo.

#include "tests/gige/FakeCamera.h"
#include "tests/producer/ProducerSession.h"

#include <arpa/inet.h>
#include <chrono>
#include <list>

using namespace GenTL;

class GigEStream : public testing::Test
{
protected:
    /// Searches until the camera is found, but not longer than a minute.
    std::string findCamera() const
    {
        const auto end = std::chrono::steady_clock::now() + std::chrono::minutes(1);
        while (std::chrono::steady_clock::now() < end) {
            session.updateDevices(interface);
            if (const auto ids = session.deviceIds(interface); !ids.empty())
                return ids.front();
        }
        return {};
    }

    void write(std::uint64_t address, std::uint32_t number) const
    {
        number = htonl(number);
        std::size_t size = sizeof number;
        EXPECT_EQ(producer.GCWritePort(port, address, &number, &size), GC_ERR_SUCCESS);
    }

    std::string description() const
    {
        const std::string url = readString(infoCall(producer.GCGetPortURLInfo, port, 0U, URL_INFO_URL));
        unsigned long long address = 0, length = 0;
        EXPECT_EQ(std::sscanf(url.c_str(), "Local:%*[^;];%llx;%llx", &address, &length), 2) << url;
        std::string text(length, '\0');
        std::size_t size = length;
        EXPECT_EQ(producer.GCReadPort(port, address, text.data(), &size), GC_ERR_SUCCESS);
        return text;
    }

    void startStream()
    {
        const std::string id = readId(idCall(producer.DevGetDataStreamID, device, 0U));
        ASSERT_EQ(producer.DevOpenDataStream(device, id.c_str(), &stream), GC_ERR_SUCCESS);
        for (int count = 0; count < 8; ++count) {
            auto &block = memory.emplace_back(imageSize);
            BUFFER_HANDLE buffer = nullptr;
            ASSERT_EQ(producer.DSAnnounceBuffer(stream, block.data(), block.size(), nullptr, &buffer),
                GC_ERR_SUCCESS);
            ASSERT_EQ(producer.DSQueueBuffer(stream, buffer), GC_ERR_SUCCESS);
        }
        ASSERT_EQ(producer.GCRegisterEvent(stream, EVENT_NEW_BUFFER, &newBuffer), GC_ERR_SUCCESS);
        ASSERT_EQ(
            producer.DSStartAcquisition(stream, ACQ_START_FLAGS_DEFAULT, GENTL_INFINITE), GC_ERR_SUCCESS);
        write(acquisitionRegister, 1);
    }

    /// Returns the frame number of the next image, and queues its buffer again. The image may be incomplete,
    /// because a busy machine loses packets.
    std::uint64_t nextFrame() const
    {
        EVENT_NEW_BUFFER_DATA data{};
        std::size_t size = sizeof data;
        EXPECT_EQ(producer.EventGetData(newBuffer, &data, &size, maxWait), GC_ERR_SUCCESS);
        std::size_t filled = 0;
        info(data.BufferHandle, BUFFER_INFO_SIZE_FILLED, filled);
        EXPECT_EQ(filled, imageSize);
        std::uint64_t frame = 0;
        info(data.BufferHandle, BUFFER_INFO_FRAMEID, frame);
        EXPECT_EQ(producer.DSQueueBuffer(stream, data.BufferHandle), GC_ERR_SUCCESS);
        return frame;
    }

    template <typename Value>
    void info(BUFFER_HANDLE buffer, BUFFER_INFO_CMD command, Value &value) const
    {
        INFO_DATATYPE type = INFO_DATATYPE_UNKNOWN;
        std::size_t size = sizeof value;
        EXPECT_EQ(producer.DSGetBufferInfo(stream, buffer, command, &type, &value, &size), GC_ERR_SUCCESS);
    }

    static constexpr std::uint64_t maxWait = 30000; // Milliseconds.
    static constexpr std::size_t imageSize = 320 * 200;
    static constexpr std::uint64_t widthRegister = 0x100, heightRegister = 0x104, acquisitionRegister = 0x124;

    std::list<std::vector<std::uint8_t>> memory; // Outlives the session, as a consumer's memory does.
    FakeCamera camera;
    const ProducerSession session{UNIVERSAL_GEV_FILE};
    const LoadedProducer &producer = session.producer();
    const IF_HANDLE interface = (session.updateInterfaces(), session.open("127.0.0.1"));
    DEV_HANDLE device = nullptr;
    PORT_HANDLE port = nullptr;
    DS_HANDLE stream = nullptr;
    EVENT_HANDLE newBuffer = nullptr;
};

TEST_F(GigEStream, cameraStreamsUntilItIsLost)
{
    ASSERT_EQ(producer.IFOpenDevice(interface, findCamera().c_str(), DEVICE_ACCESS_CONTROL, &device),
        GC_ERR_SUCCESS);
    ASSERT_EQ(producer.DevGetPort(device, &port), GC_ERR_SUCCESS);
    EXPECT_NE(description().find("</RegisterDescription>"), std::string::npos);
    write(widthRegister, 320);
    write(heightRegister, 200);
    startStream();
    std::uint64_t last = nextFrame();
    for (int count = 1; count < 20; ++count) {
        session.updateDevices(interface); // A search does not disturb the stream.
        const std::uint64_t frame = nextFrame();
        EXPECT_NE(frame, last);
        last = frame;
    }

    EVENT_HANDLE loss = nullptr;
    ASSERT_EQ(producer.GCRegisterEvent(device, EVENT_ERROR, &loss), GC_ERR_SUCCESS);
    camera.end();
    std::array<char, 256> data{};
    std::size_t size = data.size();
    EXPECT_EQ(producer.EventGetData(loss, data.data(), &size, maxWait), GC_ERR_SUCCESS);
    EXPECT_EQ(producer.DSStopAcquisition(stream, ACQ_STOP_FLAGS_KILL), GC_ERR_SUCCESS);
    EXPECT_EQ(producer.DevClose(device), GC_ERR_SUCCESS);
}
