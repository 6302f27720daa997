#include "sdk/device/StreamCore.h"

#include <algorithm>
#include <utility>

using namespace CvxCPP;
using namespace std::chrono_literals;

namespace {

/// A damaged ring may lose a wake-up, so a thread checks the state again after this time.
constexpr Milliseconds maxWait = 1s;

TimePoint deadlineAfter(Milliseconds timeout)
{
    constexpr Milliseconds forever = std::chrono::hours(24 * 365); // A longer time could overflow.
    return SteadyClock::now() + std::clamp(timeout, Milliseconds(0), forever);
}

void addTo(StreamStatistics &sum, const StreamRing::Counters &counters)
{
    sum.delivered += counters.delivered;
    sum.incomplete += counters.incomplete;
    sum.lost += counters.lost;
    sum.underruns += counters.underruns;
    sum.skipped += counters.skipped;
    sum.bytes += counters.bytes;
}

} // namespace

StreamCore::StreamCore(
    std::uint32_t buffers, StreamPolicy policy, ResultMaker results, ReportDamage reportDamage)
    : m_buffers(buffers),
      m_policy(policy),
      m_results(std::move(results)),
      m_reportDamage(std::move(reportDamage))
{ }

// ---- The state, which the device changes -------------------------------------------------------------

void StreamCore::started(std::shared_ptr<const ImageQueue> queue, std::uint64_t host)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_state != State::Lost)
            return;
        m_state = State::Running;
        m_queue = std::move(queue);
        m_host = host;
        m_base.reopenCount = static_cast<std::uint32_t>(m_losses);
    }
    sample(SteadyClock::now());
    m_changed.notify_all();
}

void StreamCore::lost(std::uint64_t host, const std::string &reason)
{
    std::shared_ptr<const ImageQueue> queue;
    {
        const std::lock_guard lock(m_mutex);
        if (m_state != State::Running || m_host != host)
            return;
        m_state = State::Lost;
        ++m_losses;
        m_lossReason = reason;
        queue = std::move(m_queue);
        addTo(m_base, queue->memory().ring().counters);
    }
    queue->memory().ring().wakeProgram();
}

void StreamCore::stopped()
{
    std::shared_ptr<const ImageQueue> queue;
    {
        const std::lock_guard lock(m_mutex);
        m_state = State::Stopped;
        m_reportedLosses = m_losses; // The end of the stream matters more than an earlier loss.
        queue = m_queue; // The images that have arrived can still be fetched.
    }
    m_changed.notify_all();
    if (queue)
        queue->memory().ring().wakeProgram();
}

void StreamCore::sample(TimePoint now)
{
    const std::lock_guard lock(m_mutex);
    const StreamStatistics statistics = counters();
    m_rates.add({now, statistics.delivered, statistics.bytes});
}

// ---- The functions of the program --------------------------------------------------------------------

CvxResult StreamCore::waitForImage(Milliseconds timeout, std::shared_ptr<const Image> &image)
{
    const TimePoint deadline = deadlineAfter(timeout);
    const std::uint64_t losses = snapshot().losses;
    if (takeUnreportedLoss())
        return lostResult();
    for (;;) {
        const Snapshot known = snapshot();
        if (known.losses != losses) {
            takeUnreportedLoss();
            return lostResult();
        }
        if (auto taken = known.queue ? take(known) : nullptr) {
            image = std::move(taken);
            return {};
        }
        if (known.state == State::Stopped)
            return m_results.result(CvxErrorClosed, "The stream is stopped.");
        if (SteadyClock::now() >= deadline)
            return m_results.result(
                CvxErrorTimeout, "No image has arrived within " + std::to_string(timeout.count()) + " ms.");
        waitForChange(known, deadline);
    }
}

StreamCore::Snapshot StreamCore::snapshot() const
{
    const std::lock_guard lock(m_mutex);
    return {m_state, m_queue, m_host, m_losses, m_queue ? m_queue->memory().ring().wakeSignals() : 0};
}

/// Returns true if there was a loss that no call has reported yet.
bool StreamCore::takeUnreportedLoss()
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_reportedLosses, m_losses) != m_losses;
}

/// Takes the next image. If the host has damaged the queue, ends the use of this host.
std::shared_ptr<const Image> StreamCore::take(const Snapshot &known)
{
    ImageQueue::Taken taken = known.queue->take();
    if (!taken.damage.empty()) {
        const std::string reason = "The process of the camera " + taken.damage + '.';
        lost(known.host, reason);
        m_reportDamage(known.host, reason);
    }
    if (taken.skipped > 0) {
        const std::lock_guard lock(m_mutex);
        m_base.skipped += taken.skipped;
    }
    return std::move(taken.image);
}

void StreamCore::waitForChange(const Snapshot &known, TimePoint deadline)
{
    if (known.queue) {
        const auto remaining = std::chrono::ceil<Milliseconds>(deadline - SteadyClock::now());
        known.queue->memory().ring().waitForImage(std::clamp(remaining, 0ms, maxWait), known.signals);
        return;
    }
    std::unique_lock lock(m_mutex);
    m_changed.wait_until(lock, deadline, [&] { return m_state != known.state || m_losses != known.losses; });
}

CvxResult StreamCore::lostResult() const
{
    const std::lock_guard lock(m_mutex);
    return m_results.result(CvxErrorDeviceLost, m_lossReason + " The camera is being opened again.");
}

StreamStatistics StreamCore::statistics() const
{
    const std::lock_guard lock(m_mutex);
    StreamStatistics statistics = counters();
    if (m_state == State::Stopped)
        return statistics;
    const auto rates = m_rates.rates({SteadyClock::now(), statistics.delivered, statistics.bytes});
    statistics.imagesPerSecond = rates.imagesPerSecond;
    statistics.bytesPerSecond = rates.bytesPerSecond;
    return statistics;
}

/// Returns the counters of all hosts together. Call this function while the mutex is held.
StreamStatistics StreamCore::counters() const
{
    StreamStatistics sum = m_base;
    if (m_queue)
        addTo(sum, m_queue->memory().ring().counters);
    return sum;
}
