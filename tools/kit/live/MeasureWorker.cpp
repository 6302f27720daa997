#include "tools/kit/live/MeasureWorker.h"

#include "sdk/image/RawImage.h"

#include <algorithm>
#include <utility>

using std::chrono::steady_clock;

namespace {

constexpr std::chrono::milliseconds minInterval{200};

/// The thread rests nine times as long as a measurement takes.
constexpr int minIntervalFactor = 10;

} // namespace

MeasureWorker::MeasureWorker(std::function<void()> notify)
    : m_notify(std::move(notify)), m_thread([this] { run(); })
{ }

MeasureWorker::~MeasureWorker()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    m_changed.notify_one();
    m_thread.join();
}

void MeasureWorker::take(std::shared_ptr<const CvxCPP::Image> image)
{
    {
        const std::lock_guard lock(m_mutex);
        m_newest.swap(image); // The older image is released after the lock.
        if (m_frozen)
            return;
        if (std::exchange(m_hasWork, true) && image)
            return; // The thread knows already.
    }
    m_changed.notify_one();
}

void MeasureWorker::setRequest(const MeasureRequest &request)
{
    {
        const std::lock_guard lock(m_mutex);
        m_request = request;
        m_hasWork = true;
    }
    m_changed.notify_one();
}

void MeasureWorker::setFrozenImage(std::shared_ptr<const CvxCPP::Image> image)
{
    {
        const std::lock_guard lock(m_mutex);
        m_frozen.swap(image);
        m_hasWork = true;
    }
    m_changed.notify_one();
}

void MeasureWorker::clear()
{
    ImagePointer newest;
    ImagePointer frozen;
    const std::lock_guard lock(m_mutex);
    newest.swap(m_newest);
    frozen.swap(m_frozen);
    m_result.reset();
    ++m_clearCount;
}

std::optional<Measurements> MeasureWorker::takeResult()
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_result, std::nullopt);
}

void MeasureWorker::run()
{
    std::unique_lock lock(m_mutex);
    while (!m_isEnding) {
        ImagePointer image = m_frozen ? m_frozen : m_newest;
        if (!m_hasWork || m_request.isEmpty() || !image) {
            image.reset();
            m_changed.wait(lock);
            continue;
        }
        m_hasWork = false;
        const MeasureRequest request = m_request;
        const std::uint64_t clearCount = m_clearCount;
        lock.unlock();

        const auto start = steady_clock::now();
        Measurements measurements = m_meter.measure(rawImage(*image), request);
        measurements.frameId = image->GetInfo().frameId;
        image.reset();
        const auto end = steady_clock::now();

        lock.lock();
        if (clearCount == m_clearCount)
            m_result = std::move(measurements);
        lock.unlock();
        m_notify();
        lock.lock();
        const auto next
            = start + std::max<steady_clock::duration>(minInterval, minIntervalFactor * (end - start));
        m_changed.wait_until(lock, next, [this] { return m_isEnding; });
    }
}
