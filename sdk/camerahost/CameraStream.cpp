#include "sdk/camerahost/CameraStream.h"

#include "sdk/camerahost/Failures.h"
#include "sdk/camerahost/Worker.h"

#include <algorithm>
#include <utility>

namespace {

constexpr CameraStream::Milliseconds undoTimeout(500); // For each call after a failed start.
constexpr int accessAttempts = 3; // A call that accesses the camera may have to repeat the access.
constexpr int formatCheckPause = 9; // Between two checks of the format, in durations of the last check.

} // namespace

CameraStream::Run::Run(DataStream &stream, std::unique_ptr<StreamMapping> streamMemory,
    const ImageSetup &images, bool onlyNewest)
    : memory(std::move(streamMemory)),
      buffers(stream.library(), stream.handle(), *memory),
      requeue(buffers, memory->ring()),
      fetch(stream, buffers, requeue, memory->ring(), images, onlyNewest)
{ }

CameraStream::CameraStream(
    const DeviceLibrary &library, GenTL::DEV_HANDLE device, NodeMap &nodes, StreamRole role)
    : m_library(library), m_device(device), m_control(nodes, role), m_stream(library)
{ }

std::variant<StreamPreparedReply, CameraStream::Failure> CameraStream::prepare(
    const PrepareStreamRequest &request)
{
    if (const auto problem = m_library.checkStreamFunctions())
        return toFailure(*problem);
    if (m_stream.handle())
        return Failure{DeviceFailure::InvalidParameter, "The stream is open already."};
    if (const auto problem = m_stream.open(m_device))
        return startFailure(*problem);
    m_control.lock(); // Before the sizes are read, because some cameras only then compute them.
    if (m_control.isWatching())
        m_format = m_control.imageFormat(); // Before the sizes, so that no change stays unnoticed.
    const BufferNeeds needs = readNeeds();
    const auto plan = BufferPlan::make(request.buffers, needs);
    if (!plan) {
        stop(undoTimeout);
        return Failure{DeviceFailure::Device,
            "Neither the camera nor its producer tells a usable size and number of buffers."};
    }
    m_minBuffers = static_cast<std::uint32_t>(std::max<std::uint64_t>(needs.minBuffers, 1));
    StreamPreparedReply reply{plan->buffers, plan->size, plan->alignment, m_control.chunkFeatures()};
    m_hasChunks = !reply.chunkFeatures.empty();
    return reply;
}

BufferNeeds CameraStream::readNeeds() const
{
    BufferNeeds needs;
    if (m_stream.number(GenTL::STREAM_INFO_DEFINES_PAYLOADSIZE).valueOr(0) != 0)
        needs.streamSize = m_stream.number(GenTL::STREAM_INFO_PAYLOAD_SIZE).valueOr(0);
    needs.cameraSize = m_control.payloadSize();
    needs.picture = m_control.configuredPicture().picture;
    needs.minBuffers = m_stream.number(GenTL::STREAM_INFO_BUF_ANNOUNCE_MIN).valueOr(0);
    needs.alignment = m_stream.number(GenTL::STREAM_INFO_BUF_ALIGNMENT).valueOr(0);
    return needs;
}

std::optional<CameraStream::Failure> CameraStream::start(
    const StartStreamRequest &request, const std::vector<int> &descriptors)
{
    auto memory = StreamMapping::map(descriptors, request.buffers, request.bufferSize);
    if (!m_stream.handle() || m_run)
        return Failure{DeviceFailure::InvalidParameter, "The stream is not prepared."};
    std::optional<Failure> failure;
    if (memory) {
        const ImageSetup images{m_control.configuredPicture(), ticksPerSecond(), m_hasChunks};
        m_run = std::make_unique<Run>(m_stream, std::move(memory), images, request.onlyNewest);
        failure = startRun();
    } else {
        failure = Failure{DeviceFailure::NoMemory, "The memory of the stream cannot be mapped."};
    }
    if (failure)
        stop(undoTimeout);
    return failure;
}

std::uint64_t CameraStream::ticksPerSecond() const
{
    if (!m_library.DevGetInfo)
        return 0;
    const InfoNumber frequency = readNumber([&](auto *type, void *value, std::size_t *size) {
        return m_library.DevGetInfo(m_device, GenTL::DEVICE_INFO_TIMESTAMP_FREQUENCY, type, value, size);
    });
    return frequency.valueOr(0);
}

/// Returns the failure of a call that has to succeed before the stream runs.
CameraStream::Failure CameraStream::startFailure(const Problem &problem) const
{
    Failure failure = toFailure(problem);
    const bool isRefusal
        = failure.failure == DeviceFailure::InUse || failure.failure == DeviceFailure::NotAvailable;
    if (!m_control.isWatching() || !isRefusal)
        return failure;
    return {DeviceFailure::NotWritable,
        "The producer gives this camera's images only to a program that controls it. " + failure.text};
}

std::optional<CameraStream::Failure> CameraStream::startRun()
{
    Run &run = *m_run;
    if (const auto problem = run.buffers.announce(m_minBuffers))
        return startFailure(*problem);
    for (std::uint32_t buffer = 0; buffer < run.buffers.size(); ++buffer) {
        if (!run.buffers.queue(buffer))
            return Failure{DeviceFailure::Device, "The producer does not accept a buffer (DSQueueBuffer)."};
    }
    if (const auto problem = m_stream.registerEvent())
        return startFailure(*problem);
    if (const auto problem = m_stream.startAcquisition())
        return startFailure(*problem);
    run.isAcquiring = true;
    run.fetch.start();
    run.requeue.start();
    if (auto text = m_control.start())
        return Failure{DeviceFailure::Device, std::move(*text)};
    return std::nullopt;
}

void CameraStream::stop(Milliseconds timeout)
{
    if (!m_stream.handle())
        return;
    if (m_run)
        stopRun(timeout);
    if (!m_isStuck)
        attempt(accessAttempts * timeout, [this] { release(); });
}

/// Stops the camera, then the stream, then the threads. Leaves out the other calls once one hangs, because
/// each of them could hang too and take the time that is needed to close the device.
void CameraStream::stopRun(Milliseconds timeout)
{
    if (m_run->isAcquiring) {
        attempt(accessAttempts * timeout, [this] { m_control.stop(); });
        if (!m_isStuck)
            stopAcquisition(timeout);
    }
    if (!m_isStuck)
        return endThreads(timeout);
    m_run->fetch.stop(timeout); // A device must not be closed while a thread uses its stream.
    m_run->requeue.stop(timeout);
}

void CameraStream::stopAcquisition(Milliseconds timeout)
{
    // By default, the producer waits for the image in progress, which may never end.
    const auto isStopped = std::make_shared<std::atomic<bool>>(false);
    Worker gentle(
        [this, isStopped] { *isStopped = !m_stream.stopAcquisition(GenTL::ACQ_STOP_FLAGS_DEFAULT); });
    gentle.join(timeout);
    if (*isStopped)
        return;
    attempt(timeout, [this] { m_stream.stopAcquisition(GenTL::ACQ_STOP_FLAGS_KILL); });
    m_isStuck = m_isStuck || !gentle.join(timeout);
}

void CameraStream::endThreads(Milliseconds timeout)
{
    bool hasEnded = m_run->fetch.stop(timeout);
    if (!hasEnded) { // The end of the registration ends the wait too.
        attempt(timeout, [this] { m_stream.unregisterEvent(); });
        hasEnded = !m_isStuck && m_run->fetch.stop(timeout);
    }
    m_isStuck = !hasEnded || !m_run->requeue.stop(timeout);
}

/// Takes the buffers back from the producer and closes the stream.
void CameraStream::release()
{
    bool isRevoked = true;
    if (m_run) {
        m_stream.unregisterEvent();
        m_stream.discardBuffers();
        isRevoked = m_run->buffers.revoke();
        if (!isRevoked) {
            m_stream.discardBuffers();
            isRevoked = m_run->buffers.revoke();
        }
    }
    m_control.unlock();
    const bool isClosed = m_stream.close();
    if (isRevoked || isClosed)
        m_run.reset();
    else // The producer may still write to the memory, so it stays mapped.
        static_cast<void>(m_run.release());
}

/// Makes a call of the producer and notes if it does not return in time.
void CameraStream::attempt(Milliseconds timeout, std::function<void()> call)
{
    const bool hasReturned = callWithin(timeout, std::move(call));
    m_isStuck = m_isStuck || !hasReturned;
}

std::optional<std::string> CameraStream::findFormatChange()
{
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    if (!m_run || !m_control.isWatching()) // The format is locked during a stream of our own.
        return std::nullopt;
    if (start < m_nextFormatCheck)
        return std::nullopt;
    const bool hasChanged = m_control.hasFormatChanged(m_format);
    const auto end = Clock::now();
    m_nextFormatCheck = end + formatCheckPause * (end - start);
    if (!hasChanged)
        return std::nullopt;
    return "The program that controls the camera has changed the format of the images.";
}

std::uint64_t CameraStream::delivered() const
{
    return m_run ? m_run->memory->ring().counters.delivered.load(std::memory_order_relaxed) : 0;
}

FetchLoop::Health CameraStream::takeHealth()
{
    return m_run ? m_run->fetch.takeHealth() : FetchLoop::Health::Good;
}
