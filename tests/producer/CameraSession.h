#pragma once

#include "tests/producer/ProducerSession.h"
#include "tests/producer/camera/TestCameraRegisters.h"

#include <cstring>

namespace Registers = TestCameraRegisters;

/// Provides the test producer with its camera opened and, after openStream(), its stream.
class CameraSession : public testing::Test
{
protected:
    CameraSession()
    {
        session.updateInterfaces();
        interface = session.open("one");
        session.updateDevices(interface);
        device = openDevice("camera");
        port = portOf(device);
    }

    GenTL::DEV_HANDLE openDevice(const char *id)
    {
        GenTL::DEV_HANDLE handle = nullptr;
        EXPECT_EQ(producer.IFOpenDevice(interface, id, GenTL::DEVICE_ACCESS_CONTROL, &handle),
            GenTL::GC_ERR_SUCCESS);
        return handle;
    }

    GenTL::PORT_HANDLE portOf(GenTL::DEV_HANDLE handle) const
    {
        GenTL::PORT_HANDLE remote = nullptr;
        EXPECT_EQ(producer.DevGetPort(handle, &remote), GenTL::GC_ERR_SUCCESS);
        return remote;
    }

    void openStream()
    {
        EXPECT_EQ(producer.DevOpenDataStream(device, streamId().c_str(), &stream), GenTL::GC_ERR_SUCCESS);
    }

    std::string streamId() const { return readId(idCall(producer.DevGetDataStreamID, device, 0)); }

    /// Announces a buffer of this size, whose memory the session owns, and queues it.
    GenTL::BUFFER_HANDLE queueBuffer(std::size_t size = 64)
    {
        const GenTL::BUFFER_HANDLE buffer = announceBuffer(size);
        EXPECT_EQ(producer.DSQueueBuffer(stream, buffer), GenTL::GC_ERR_SUCCESS);
        return buffer;
    }

    GenTL::BUFFER_HANDLE announceBuffer(std::size_t size = 64)
    {
        memory.push_back(std::make_unique<char[]>(size));
        GenTL::BUFFER_HANDLE buffer = nullptr;
        EXPECT_EQ(producer.DSAnnounceBuffer(stream, memory.back().get(), size, this, &buffer),
            GenTL::GC_ERR_SUCCESS);
        return buffer;
    }

    GenTL::EVENT_HANDLE registerEvent(void *source, GenTL::EVENT_TYPE type) const
    {
        GenTL::EVENT_HANDLE event = nullptr;
        EXPECT_EQ(producer.GCRegisterEvent(source, type, &event), GenTL::GC_ERR_SUCCESS);
        return event;
    }

    GenTL::GC_ERROR start(std::uint64_t images = GenTL::GENTL_INFINITE) const
    {
        return producer.DSStartAcquisition(stream, GenTL::ACQ_START_FLAGS_DEFAULT, images);
    }

    void writeRegister(std::uint64_t address, std::uint64_t value) const
    {
        std::size_t size = sizeof value;
        EXPECT_EQ(producer.GCWritePort(port, address, &value, &size), GenTL::GC_ERR_SUCCESS);
    }

    std::uint64_t readRegister(std::uint64_t address) const
    {
        std::uint64_t value = 0;
        std::size_t size = sizeof value;
        EXPECT_EQ(producer.GCReadPort(port, address, &value, &size), GenTL::GC_ERR_SUCCESS);
        return value;
    }

    /// Fetches the data of a new-buffer event, or fails with a code.
    GenTL::GC_ERROR fetch(GenTL::EVENT_HANDLE event, GenTL::BUFFER_HANDLE *buffer, std::uint64_t timeout = 0)
    {
        GenTL::EVENT_NEW_BUFFER_DATA data{};
        std::size_t size = sizeof data;
        const GenTL::GC_ERROR error = producer.EventGetData(event, &data, &size, timeout);
        *buffer = data.BufferHandle;
        return error;
    }

    InfoCall streamInfo(GenTL::STREAM_INFO_CMD command) const
    {
        return infoCall(producer.DSGetInfo, stream, command);
    }
    InfoCall bufferInfo(GenTL::BUFFER_HANDLE buffer, GenTL::BUFFER_INFO_CMD command) const
    {
        return infoCall(producer.DSGetBufferInfo, stream, buffer, command);
    }
    InfoCall deviceInfo(GenTL::DEVICE_INFO_CMD command) const
    {
        return infoCall(producer.DevGetInfo, device, command);
    }

    std::vector<std::unique_ptr<char[]>> memory; // Outlives the session, as a consumer's memory does.
    const ProducerSession session{TEST_PRODUCER};
    const LoadedProducer &producer = session.producer();
    GenTL::IF_HANDLE interface = nullptr;
    GenTL::DEV_HANDLE device = nullptr;
    GenTL::PORT_HANDLE port = nullptr;
    GenTL::DS_HANDLE stream = nullptr;
};
