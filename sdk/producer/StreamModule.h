#pragma once

#include "sdk/producer/BufferPool.h"
#include "sdk/producer/CameraConnection.h"
#include "sdk/producer/Module.h"
#include "sdk/producer/ModulePort.h"

#include <atomic>

/// An open data stream, which a DS_HANDLE identifies. start() and info() may wait for the camera.
class StreamModule final : public Module
{
public:
    static constexpr const char *handleName = "an open data stream";

    /// The camera must have images.
    StreamModule(
        std::shared_ptr<CameraConnection> camera, std::string id, const std::string &producerVersion);

    BufferPool &buffers() { return *m_buffers; }

    // These two functions do the same as the functions of BufferPool, and notify the image source.
    GenTL::GC_ERROR queue(GenTL::BUFFER_HANDLE handle);
    GenTL::GC_ERROR flush(GenTL::ACQ_QUEUE_TYPE operation);

    /// Starts the image source. Returns GC_ERR_NOT_IMPLEMENTED for unknown flags, GC_ERR_INVALID_HANDLE if
    /// the stream was closed meanwhile, and what BufferPool::start() returns. Throws what
    /// ImageSource::start() throws.
    GenTL::GC_ERROR start(GenTL::ACQ_START_FLAGS flags, std::uint64_t images);

    /// Stops the image source and waits until it has stopped. Returns GC_ERR_NOT_IMPLEMENTED for unknown
    /// flags and GC_ERR_RESOURCE_IN_USE if the source is not started.
    GenTL::GC_ERROR stop(GenTL::ACQ_STOP_FLAGS flags);

    /// Writes the value of an info command to a complete output. Returns GC_ERR_SUCCESS,
    /// GC_ERR_BUFFER_TOO_SMALL, GC_ERR_NOT_AVAILABLE, or GC_ERR_NOT_IMPLEMENTED for an unknown command.
    GenTL::GC_ERROR info(GenTL::STREAM_INFO_CMD command, const InfoOutput &output) const;

    void close() override;
    Port *port() override { return &m_port; }
    std::shared_ptr<Event> createEvent(GenTL::EVENT_TYPE type) override;

private:
    enum class State : std::uint8_t
    {
        Stopped,
        Started,
        Closed
    };

    void stopSource(bool isImmediate);
    std::vector<ModuleFeature> features();

    const std::shared_ptr<CameraConnection> m_camera;
    ImageSource &m_images;
    const std::string m_id;
    const std::uint64_t m_startedBefore; // Images of the source before this stream was opened.
    const std::uint64_t m_lostBefore;
    const std::shared_ptr<BufferPool> m_buffers;
    std::mutex m_acquisitionMutex; // Held while the source starts or stops; guards the changes of m_state.
    std::atomic<State> m_state{State::Stopped};
    ModulePort m_port;
};
