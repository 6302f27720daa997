#include "sdk/producer/StreamModule.h"

#include "sdk/producer/NewBufferEvent.h"
#include "sdk/producer/TechnologyNames.h"

#include <utility>

using namespace GenTL;

StreamModule::StreamModule(
    std::shared_ptr<CameraConnection> camera, std::string id, const std::string &producerVersion)
    : m_camera(std::move(camera)),
      m_images(*m_camera->images()),
      m_id(std::move(id)),
      m_startedBefore(m_images.startedImages()),
      m_lostBefore(m_images.lostImages()),
      m_buffers(std::make_shared<BufferPool>(
          StreamTraits{m_camera->record().tlType, m_camera->timestampFrequency()})),
      m_port({m_id, m_camera->record().vendor, m_camera->record().model, m_camera->record().tlType,
                 dataStreamModuleName, producerVersion, "StreamPort"},
          features())
{ }

GC_ERROR StreamModule::queue(BUFFER_HANDLE handle)
{
    const GC_ERROR error = m_buffers->queue(handle);
    if (!error && m_state == State::Started)
        m_images.bufferQueued();
    return error;
}

GC_ERROR StreamModule::flush(ACQ_QUEUE_TYPE operation)
{
    const GC_ERROR error = m_buffers->flush(operation);
    if (!error && m_state == State::Started)
        m_images.bufferQueued();
    return error;
}

GC_ERROR StreamModule::start(ACQ_START_FLAGS flags, std::uint64_t images)
{
    if (flags != ACQ_START_FLAGS_DEFAULT)
        return fail(GC_ERR_NOT_IMPLEMENTED, "There are no such start flags.");
    const std::lock_guard lock(m_acquisitionMutex);
    if (m_state == State::Closed)
        return fail(GC_ERR_INVALID_HANDLE, "The data stream was closed meanwhile.");
    if (const GC_ERROR error = m_buffers->start(images, m_images.minBuffers(), m_images.payloadSize()))
        return error;
    m_state = State::Started; // Before the start, so that every later buffer is reported.
    try {
        m_images.start(*m_buffers);
    } catch (...) {
        m_buffers->stop();
        m_state = State::Stopped;
        throw;
    }
    return GC_ERR_SUCCESS;
}

GC_ERROR StreamModule::stop(ACQ_STOP_FLAGS flags)
{
    if (flags != ACQ_STOP_FLAGS_DEFAULT && flags != ACQ_STOP_FLAGS_KILL)
        return fail(GC_ERR_NOT_IMPLEMENTED, "There are no such stop flags.");
    const std::lock_guard lock(m_acquisitionMutex);
    if (m_state != State::Started)
        return fail(GC_ERR_RESOURCE_IN_USE, "The acquisition is not started.");
    stopSource(flags == ACQ_STOP_FLAGS_KILL);
    return GC_ERR_SUCCESS;
}

void StreamModule::close()
{
    const std::lock_guard lock(m_acquisitionMutex);
    if (m_state == State::Started)
        stopSource(true);
    m_state = State::Closed;
}

void StreamModule::stopSource(bool isImmediate)
{
    m_images.stop(isImmediate);
    m_buffers->stop();
    m_state = State::Stopped;
}

std::shared_ptr<Event> StreamModule::createEvent(EVENT_TYPE type)
{
    return type == EVENT_NEW_BUFFER ? std::make_shared<NewBufferEvent>(m_buffers) : nullptr;
}

GC_ERROR StreamModule::info(STREAM_INFO_CMD command, const InfoOutput &output) const
{
    const BufferPool::Counts counts = m_buffers->counts();
    switch (command) {
    case STREAM_INFO_ID:
        return output.writeString(m_id);
    case STREAM_INFO_NUM_DELIVERED:
        return output.writeUint64(counts.fetched);
    case STREAM_INFO_NUM_UNDERRUN:
        return output.writeUint64(counts.underruns);
    case STREAM_INFO_NUM_ANNOUNCED:
        return output.writeSize(counts.announced);
    case STREAM_INFO_NUM_QUEUED:
        return output.writeSize(counts.queued);
    case STREAM_INFO_NUM_AWAIT_DELIVERY:
        return output.writeSize(counts.awaitingDelivery);
    case STREAM_INFO_NUM_STARTED:
        return output.writeUint64(m_images.startedImages() - m_startedBefore);
    case STREAM_INFO_PAYLOAD_SIZE:
        return output.writeSize(m_images.payloadSize());
    case STREAM_INFO_IS_GRABBING:
        return output.writeBool8(counts.isAcquiring);
    case STREAM_INFO_DEFINES_PAYLOADSIZE:
        return output.writeBool8(true);
    case STREAM_INFO_TLTYPE:
        return output.writeString(m_camera->record().tlType);
    case STREAM_INFO_NUM_CHUNKS_MAX: {
        const std::optional<std::size_t> maxChunks = m_images.maxChunks();
        return maxChunks ? output.writeSize(*maxChunks)
                         : fail(GC_ERR_NOT_AVAILABLE, "The number of chunks is not known.");
    }
    case STREAM_INFO_BUF_ANNOUNCE_MIN:
        return output.writeSize(m_images.minBuffers());
    case STREAM_INFO_BUF_ALIGNMENT:
        return output.writeSize(1);
    default:
        return failUnknownCommand(command);
    }
}

std::vector<ModuleFeature> StreamModule::features()
{
    using F = ModuleFeature;
    const std::string about = "StreamInformation";
    const std::string buffers = "BufferHandlingControl";
    const auto count = [&](const char *name, const char *toolTip, auto read) {
        return F::number(buffers, name, toolTip, [this, read] { return read(m_buffers->counts()); });
    };
    using Counts = BufferPool::Counts;
    F handlingMode = F::choice(buffers, "StreamBufferHandlingMode",
        "Order in which the buffers are filled and delivered.", {"Default"}, [] { return 0; });
    handlingMode.write = [](std::uint64_t mode) {
        if (mode != 0)
            throw GenTlError(GC_ERR_INVALID_VALUE, "There is no other mode than \"Default\".");
    };
    return {
        F::text(about, "StreamID", "ID of the data stream.", [this] { return m_id; }),
        F::choice(about, "StreamType", "Transport layer technology of the data stream.", technologyNames(),
            [this] { return technologyIndex(m_camera->record().tlType); }),
        std::move(handlingMode),
        F::number(buffers, "StreamAnnounceBufferMinimum", "Fewest buffers with which images can be acquired.",
            [this] { return m_images.minBuffers(); }),
        count("StreamAnnouncedBufferCount", "Number of announced buffers.",
            [](const Counts &counts) { return counts.announced; }),
        count("StreamInputBufferCount", "Number of buffers that are being filled or wait for it.",
            [](const Counts &counts) { return counts.queued; }),
        count("StreamOutputBufferCount", "Number of filled buffers that wait for the consumer.",
            [](const Counts &counts) { return counts.awaitingDelivery; }),
        count("StreamDeliveredFrameCount", "Number of images that the consumer has received since the start.",
            [](const Counts &counts) { return counts.fetched; }),
        F::number(buffers, "StreamStartedFrameCount", "Number of images that were begun.",
            [this] { return m_images.startedImages() - m_startedBefore; }),
        F::number(buffers, "StreamLostFrameCount", "Number of images that were lost or found no buffer.",
            [this] { return m_images.lostImages() - m_lostBefore + m_buffers->counts().underruns; }),
    };
}
