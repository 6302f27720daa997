#include "sdk/aravis/AravisImages.h"

#include "sdk/aravis/AravisError.h"
#include "sdk/aravis/DeliveredBuffer.h"

#include <chrono>
#include <sys/resource.h>
#include <utility>

namespace {

/// Limit for the image that is in progress when the stream is stopped. An incomplete image ends earlier:
/// see frameRetention.
constexpr std::chrono::milliseconds lastImageTimeout{500};

/// The receive buffer of a network stream, in bytes. The system reduces it to what net.core.rmem_max permits.
constexpr int socketBufferSize = 32 << 20;

/// Time in microseconds after which an image without further packets is incomplete. The images after it wait
/// meanwhile. A computer under full load may pause for longer than the 0.1 seconds that are usual.
constexpr guint frameRetention = 200'000;

/// Sets the options that only a network stream has.
void setUp(ArvStream &stream)
{
    if (!ARV_IS_GV_STREAM(&stream))
        return;
    g_object_set(&stream, "packet-resend", ARV_GV_STREAM_PACKET_RESEND_ALWAYS, "socket-buffer",
        ARV_GV_STREAM_SOCKET_BUFFER_FIXED, "socket-buffer-size", socketBufferSize, "frame-retention",
        frameRetention, nullptr);
}

/// Lets the calling thread run before others, because packets that nobody receives in time are lost. Without
/// the permission of the system, nothing changes.
void raisePriority()
{
    constexpr int callingThread = 0, niceness = -10;
    setpriority(PRIO_PROCESS, callingThread, niceness);
}

} // namespace

AravisImages::AravisImages(ArvDevice &device, ChunkByteOrder byteOrder, std::function<void()> prepare,
    std::function<void()> requireConnection)
    : m_device(device),
      m_byteOrder(byteOrder),
      m_prepare(std::move(prepare)),
      m_requireConnection(std::move(requireConnection))
{ }

AravisImages::~AravisImages()
{
    stop(true);
}

std::size_t AravisImages::payloadSize() const
{
    m_requireConnection();
    const std::lock_guard lock(m_featureMutex);
    AravisError error;
    const gint64 size = arv_device_get_integer_feature_value(&m_device, "PayloadSize", error.receiver());
    if (error.isSet() || size <= 0)
        throw error.toGenTl("The camera does not report the size of its images");
    return static_cast<std::size_t>(size);
}

void AravisImages::start(BufferQueue &queue)
{
    const std::lock_guard featureLock(m_featureMutex);
    m_prepare();
    AravisError error;
    GObjectPointer<ArvStream> stream(
        arv_device_create_stream(&m_device, &AravisImages::handleEvent, this, error.receiver()));
    if (!stream)
        throw error.toGenTl("The stream cannot be started");
    setUp(*stream);
    const FilledImage configured = configuredImage(m_device);

    const std::lock_guard lock(m_mutex);
    m_isStreaming = true;
    m_stream = std::move(stream);
    m_queue = &queue;
    m_configured = configured;
    m_gaps = {};
    m_packetsWithoutBuffer = 0;
    pushFreeBuffers();
}

void AravisImages::stop(bool isImmediate)
{
    std::unique_lock lock(m_mutex);
    if (!m_isStreaming)
        return;
    if (!isImmediate)
        m_imageDone.wait_for(
            lock, lastImageTimeout, [this, lastImage = m_started] { return m_done >= lastImage; });
    m_isStreaming = false;
    lock.unlock();
    m_stream.reset(); // Ends the thread of the stream, which still delivers the images in progress.
    lock.lock();
    m_done = m_started;
    const auto unused = std::exchange(m_taken, {});
    lock.unlock();
    for (const auto &[aravisBuffer, buffer] : unused)
        m_queue->giveBack(buffer);
}

void AravisImages::bufferQueued()
{
    const std::lock_guard lock(m_mutex);
    if (m_isStreaming)
        pushFreeBuffers();
}

std::uint64_t AravisImages::startedImages() const
{
    const std::lock_guard lock(m_mutex);
    return m_started;
}

std::uint64_t AravisImages::lostImages() const
{
    const std::lock_guard lock(m_mutex);
    return m_lost;
}

/// Called by the thread of the stream.
void AravisImages::handleEvent(void *self, ArvStreamCallbackType type, ArvBuffer *buffer)
{
    auto *const images = static_cast<AravisImages *>(self);
    if (type == ARV_STREAM_CALLBACK_TYPE_INIT)
        raisePriority();
    if (type == ARV_STREAM_CALLBACK_TYPE_START_BUFFER)
        images->bufferStarted();
    if (type == ARV_STREAM_CALLBACK_TYPE_BUFFER_DONE)
        images->bufferDone(buffer);
}

void AravisImages::bufferStarted()
{
    const std::lock_guard lock(m_mutex);
    ++m_started;
}

void AravisImages::bufferDone(ArvBuffer *buffer)
{
    std::unique_lock lock(m_mutex);
    const auto taken = m_taken.extract(buffer);
    BufferQueue *const queue = m_queue;
    FilledImage image = toFilledImage(buffer, taken.mapped().size, m_byteOrder, m_configured);
    if (image.isIncomplete && image.frameId == 0)
        image.frameId = m_gaps.expectedId(); // The packet with the number is missing.
    const std::uint64_t underruns = takeUnderruns(image.frameId);
    // libaravis has put the buffer into its output queue. A stream that ends releases this queue itself.
    const GObjectPointer<ArvBuffer> output(
        m_isStreaming ? arv_stream_try_pop_buffer(m_stream.get()) : nullptr);
    lock.unlock();

    if (underruns > 0)
        queue->countUnderrun(underruns);
    queue->deliver(taken.mapped(), image);

    lock.lock();
    ++m_done;
    if (m_isStreaming)
        pushFreeBuffers(); // A flush may have sent the buffer back to the input pool.
    m_imageDone.notify_all();
}

/// Passes all buffers of the input pool to libaravis. Called with the mutex locked.
void AravisImages::pushFreeBuffers()
{
    while (const auto buffer = m_queue->take()) {
        ArvBuffer *const aravisBuffer = arv_buffer_new(buffer->size, buffer->data);
        m_taken.emplace(aravisBuffer, *buffer);
        arv_stream_push_buffer(m_stream.get(), aravisBuffer);
    }
}

/// Returns how many images are missing before this one because there was no free buffer. Counts images that
/// are missing for another reason as lost. Called with the mutex locked.
std::uint64_t AravisImages::takeUnderruns(std::uint64_t frameId)
{
    const std::uint64_t missing = m_gaps.missingBefore(frameId);
    guint64 packetsWithoutBuffer = m_packetsWithoutBuffer; // libaravis does not count whole images.
    if (m_isStreaming)
        arv_stream_get_statistics(m_stream.get(), nullptr, nullptr, &packetsWithoutBuffer);
    if (std::exchange(m_packetsWithoutBuffer, packetsWithoutBuffer) != packetsWithoutBuffer)
        return missing;
    m_lost += missing;
    return 0;
}
