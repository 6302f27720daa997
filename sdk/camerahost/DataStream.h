#pragma once

#include "sdk/camerahost/DeviceLibrary.h"
#include "sdk/camerahost/InfoNumber.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <optional>

/// The first data stream of an opened device, and the event that reports its filled buffers.
class DataStream
{
public:
    explicit DataStream(const DeviceLibrary &library) : m_library(library) { }

    /// Opens the stream. Returns a problem with the code GC_ERR_NOT_AVAILABLE if the device has no stream.
    std::optional<Problem> open(GenTL::DEV_HANDLE device);

    const DeviceLibrary &library() const { return m_library; }

    /// Returns the handle, or null if the stream is closed. Any thread may call this function.
    GenTL::DS_HANDLE handle() const { return m_handle; }

    InfoNumber number(GenTL::STREAM_INFO_CMD command) const;

    std::optional<Problem> registerEvent();
    void unregisterEvent();

    /// Waits for the next event, like EventGetData. Blocks for at most `timeout` milliseconds, unless the
    /// producer hangs.
    GenTL::GC_ERROR waitForEvent(void *data, std::size_t &size, std::uint64_t timeout) const;

    /// Ends a wait, if the producer can do this.
    void killEvent() const;

    std::optional<Problem> startAcquisition();
    std::optional<Problem> stopAcquisition(GenTL::ACQ_STOP_FLAGS flags);

    /// Takes all buffers from the producer's queues.
    void discardBuffers();

    /// Closes the stream. Returns false if this fails, so that the producer may still use the buffers.
    bool close();

private:
    const DeviceLibrary &m_library;
    std::atomic<GenTL::DS_HANDLE> m_handle{nullptr};
    std::atomic<GenTL::EVENT_HANDLE> m_event{nullptr};
};
