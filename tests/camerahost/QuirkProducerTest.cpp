// Tests that the quirk producer is an ordinary producer as long as its script is empty.

#include "tests/camerahost/QuirkProducer.h"
#include "sdk/camerahost/DeviceLibrary.h"

#include <array>
#include <gtest/gtest.h>

using namespace GenTL;

namespace {

/// Uses the producer in this process.
class OpenedProducer
{
public:
    explicit OpenedProducer(const QuirkProducer &producer)
    {
        EXPECT_FALSE(library.load(producer.ctiPath().c_str()));
        EXPECT_FALSE(library.resolveDeviceFunctions());
        TL_HANDLE system = nullptr;
        IF_HANDLE interface = nullptr;
        EXPECT_EQ(library.GCInitLib(), GC_ERR_SUCCESS);
        EXPECT_EQ(library.TLOpen(&system), GC_ERR_SUCCESS);
        EXPECT_EQ(library.TLOpenInterface(system, "net0", &interface), GC_ERR_SUCCESS);
        EXPECT_EQ(library.IFOpenDevice(interface, "A1", DEVICE_ACCESS_CONTROL, &device), GC_ERR_SUCCESS);
        EXPECT_EQ(library.DevGetPort(device, &port), GC_ERR_SUCCESS);
        EXPECT_EQ(library.DevOpenDataStream(device, "Stream0", &stream), GC_ERR_SUCCESS);
        EXPECT_EQ(library.GCRegisterEvent(stream, EVENT_NEW_BUFFER, &event), GC_ERR_SUCCESS);
    }

    ~OpenedProducer()
    {
        write(0x30, 1);
        EXPECT_EQ(library.DSStopAcquisition(stream, ACQ_STOP_FLAGS_DEFAULT), GC_ERR_SUCCESS);
        EXPECT_EQ(library.GCUnregisterEvent(stream, EVENT_NEW_BUFFER), GC_ERR_SUCCESS);
        EXPECT_EQ(library.DSFlushQueue(stream, ACQ_QUEUE_ALL_DISCARD), GC_ERR_SUCCESS);
        for (BUFFER_HANDLE buffer : buffers)
            EXPECT_EQ(library.DSRevokeBuffer(stream, buffer, nullptr, nullptr), GC_ERR_SUCCESS);
        EXPECT_EQ(library.DSClose(stream), GC_ERR_SUCCESS);
        EXPECT_EQ(library.DevClose(device), GC_ERR_SUCCESS);
    }

    void start()
    {
        for (std::size_t i = 0; i < buffers.size(); ++i) {
            EXPECT_EQ(
                library.DSAnnounceBuffer(stream, memory[i].data(), memory[i].size(), nullptr, &buffers[i]),
                GC_ERR_SUCCESS);
            EXPECT_EQ(library.DSQueueBuffer(stream, buffers[i]), GC_ERR_SUCCESS);
        }
        EXPECT_EQ(library.DSStartAcquisition(stream, 0, GENTL_INFINITE), GC_ERR_SUCCESS);
        write(0x28, 1);
    }

    void write(std::uint64_t address, std::uint64_t value)
    {
        std::size_t size = sizeof value;
        EXPECT_EQ(library.GCWritePort(port, address, &value, &size), GC_ERR_SUCCESS);
    }

    DeviceLibrary library;
    DEV_HANDLE device = nullptr;
    PORT_HANDLE port = nullptr;
    DS_HANDLE stream = nullptr;
    EVENT_HANDLE event = nullptr;
    std::array<std::array<std::uint8_t, 4096>, 3> memory{};
    std::array<BUFFER_HANDLE, 3> buffers{};
};

} // namespace

TEST(QuirkProducer, streamsWithoutAScript)
{
    const QuirkProducer producer;
    {
        OpenedProducer opened(producer);
        opened.start();
        for (std::uint64_t image = 0; image < 50; ++image) {
            EVENT_NEW_BUFFER_DATA data{};
            std::size_t size = sizeof data;
            ASSERT_EQ(opened.library.EventGetData(opened.event, &data, &size, 20'000), GC_ERR_SUCCESS);
            std::uint64_t frameId = 0;
            void *base = nullptr;
            size = sizeof base;
            opened.library.DSGetBufferInfo(
                opened.stream, data.BufferHandle, BUFFER_INFO_BASE, nullptr, &base, &size);
            opened.library.DSGetBufferInfo(
                opened.stream, data.BufferHandle, BUFFER_INFO_FRAMEID, nullptr, &frameId, &size);
            EXPECT_GT(frameId, image);
            EXPECT_EQ(static_cast<std::uint8_t *>(base)[64 * 47 + 63], (63 + 3 * 47 + frameId) % 256);
            ASSERT_EQ(opened.library.DSQueueBuffer(opened.stream, data.BufferHandle), GC_ERR_SUCCESS);
        }
    }
    EXPECT_EQ(producer.count("closed A1"), 1U);
    EXPECT_EQ(producer.count("violation"), 0U);
}
