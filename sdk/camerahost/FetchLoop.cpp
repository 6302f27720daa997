#include "sdk/camerahost/FetchLoop.h"

#include <array>
#include <cstring>
#include <thread>

namespace {

constexpr std::uint64_t waitSlice = 100; // Milliseconds; some producers ignore a wish to end a longer wait.
constexpr std::chrono::milliseconds pauseTime(10);
constexpr std::chrono::milliseconds updateInterval(100);
constexpr std::chrono::seconds maxFailureTime(3);
constexpr auto relaxed = std::memory_order_relaxed;

std::uint64_t toNanoseconds(std::chrono::steady_clock::time_point time)
{
    const std::chrono::nanoseconds sinceStart = time.time_since_epoch();
    return static_cast<std::uint64_t>(sinceStart.count());
}

} // namespace

FetchLoop::FetchLoop(DataStream &stream, AnnouncedBuffers &buffers, Requeue &requeue, StreamRing &ring,
    const ImageSetup &images, bool onlyNewest)
    : m_stream(stream),
      m_buffers(buffers),
      m_requeue(requeue),
      m_ring(ring),
      m_reader(stream.library(), stream.handle(), buffers, images),
      m_onlyNewest(onlyNewest),
      m_underrunsBefore(stream.number(GenTL::STREAM_INFO_NUM_UNDERRUN).valueOr(0))
{ }

void FetchLoop::start()
{
    m_worker = std::make_unique<Worker>([this] { run(); });
}

bool FetchLoop::stop(std::chrono::milliseconds timeout)
{
    m_isStopping = true;
    if (!m_worker)
        return true;
    m_stream.killEvent();
    return m_worker->join(timeout);
}

FetchLoop::Health FetchLoop::takeHealth()
{
    if (m_calls.look() >= Requeue::maxLooks || m_requeue.isHanging())
        return Health::Broken;
    Health health = Health::Suspicious;
    m_health.compare_exchange_strong(health, Health::Good);
    return m_requeue.takeFailure() && health == Health::Good ? Health::Suspicious : health;
}

void FetchLoop::run()
{
    while (!m_isStopping) {
        const CallWatch::Call call(m_calls);
        GenTL::BUFFER_HANDLE buffer = nullptr;
        const EventAction action = waitForEvent(buffer);
        if (m_isStopping && action != EventAction::TakeBuffer)
            break;
        if (!handle(action, buffer)) {
            m_health = Health::Broken;
            break;
        }
        m_requeue.queueReleased();
        if (Clock::now() >= m_nextUpdate)
            updateUnderruns();
    }
    updateUnderruns();
}

EventAction FetchLoop::waitForEvent(GenTL::BUFFER_HANDLE &buffer)
{
    alignas(GenTL::BUFFER_HANDLE) std::array<std::uint8_t, 4096> data;
    std::size_t size = data.size(); // More than any event needs, because some producers return more data.
    const GenTL::GC_ERROR code = m_stream.waitForEvent(data.data(), size, waitSlice);
    m_receivedAt = Clock::now();
    const EventAction action = m_rule.next(code, size);
    if (action == EventAction::TakeBuffer)
        std::memcpy(&buffer, data.data(), sizeof(buffer));
    return action;
}

/// Returns false if the stream is broken.
bool FetchLoop::handle(EventAction action, GenTL::BUFFER_HANDLE buffer)
{
    if (action != EventAction::PauseAndCheck)
        m_failingSince.reset();
    switch (action) {
    case EventAction::TakeBuffer:
        if (!deliver(buffer))
            pause();
        return true;
    case EventAction::Continue:
        return true;
    case EventAction::PauseAndCheck:
        m_health = Health::Suspicious;
        pause();
        m_failingSince = m_failingSince.value_or(m_receivedAt);
        return m_receivedAt - *m_failingSince < maxFailureTime;
    case EventAction::Pause:
        pause();
        return true;
    case EventAction::RegisterAgain:
        m_stream.unregisterEvent();
        return !m_stream.registerEvent();
    case EventAction::Leave:
        break;
    }
    return false;
}

/// Hands the image in this buffer over to the program. Returns false if there is no such buffer.
bool FetchLoop::deliver(GenTL::BUFFER_HANDLE handle)
{
    const auto buffer = m_buffers.take(handle);
    if (!buffer)
        return false;
    ImageRecord &record = m_ring.record(*buffer);
    record.receivedAt = toNanoseconds(m_receivedAt);
    const auto frameId = m_reader.read(*buffer, record);
    StreamRing::Counters &counters = m_ring.counters;
    counters.delivered.fetch_add(1, relaxed);
    counters.bytes.fetch_add(record.imageSize, relaxed);
    if (record.isComplete == 0)
        counters.incomplete.fetch_add(1, relaxed);
    if (const std::uint64_t lost = m_gaps.next(frameId))
        counters.lost.fetch_add(lost, relaxed);
    if (m_onlyNewest)
        skipUnclaimed();
    m_ring.push(*buffer);
    return true;
}

/// Takes back the images that the program has not taken yet.
void FetchLoop::skipUnclaimed()
{
    while (const auto older = m_ring.pop()) {
        m_ring.counters.skipped.fetch_add(1, relaxed);
        m_requeue.queue(*older);
    }
}

void FetchLoop::updateUnderruns()
{
    m_nextUpdate = Clock::now() + updateInterval;
    const InfoNumber underruns = m_stream.number(GenTL::STREAM_INFO_NUM_UNDERRUN);
    if (underruns.isKnown() && underruns.value >= m_underrunsBefore)
        m_ring.counters.underruns.store(underruns.value - m_underrunsBefore, relaxed);
}

void FetchLoop::pause() const
{
    std::this_thread::sleep_for(pauseTime);
}
