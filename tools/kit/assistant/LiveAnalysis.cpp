#include "tools/kit/assistant/LiveAnalysis.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

using std::chrono::steady_clock;

namespace {

/// The thread rests at least as long as an analysis takes.
constexpr int restFactor = 2;

} // namespace

/// The thread of the analysis. Every function may be called on any thread.
class LiveAnalysis::Worker
{
public:
    /// @param report Called on the thread of the worker with each result and the value of clearCount().
    using Report = std::function<void(const Deliver &deliver, std::uint64_t clearCount)>;

    Worker(Analyse analyse, double maxRate, Report report)
        : m_analyse(std::move(analyse)),
          m_minInterval(
              std::chrono::duration_cast<steady_clock::duration>(std::chrono::duration<double>(1 / maxRate))),
          m_report(std::move(report)),
          m_thread([this] { run(); })
    { }

    ~Worker()
    {
        {
            const std::lock_guard lock(m_mutex);
            m_isEnding = true;
        }
        m_changed.notify_one();
        m_thread.join();
    }

    void take(std::shared_ptr<const CvxCPP::Image> image)
    {
        {
            const std::lock_guard lock(m_mutex);
            m_newest.swap(image); // The older image is released after the lock.
            m_hasWork = true;
        }
        m_changed.notify_one();
    }

    void repeat()
    {
        {
            const std::lock_guard lock(m_mutex);
            m_hasWork = true;
        }
        m_changed.notify_one();
    }

    void clear()
    {
        std::shared_ptr<const CvxCPP::Image> newest; // Released after the lock.
        const std::lock_guard lock(m_mutex);
        newest.swap(m_newest);
        ++m_clearCount;
    }

    /// Returns how often clear() was called.
    std::uint64_t clearCount() const
    {
        const std::lock_guard lock(m_mutex);
        return m_clearCount;
    }

private:
    void run();

    const Analyse m_analyse;
    const steady_clock::duration m_minInterval;
    const Report m_report;

    mutable std::mutex m_mutex; // Protects everything below except the thread.
    std::condition_variable m_changed;
    std::shared_ptr<const CvxCPP::Image> m_newest;
    bool m_hasWork = false; // The newest image was not analysed with the present parameters.
    bool m_isEnding = false;
    std::uint64_t m_clearCount = 0;
    std::thread m_thread; // Declared last, because it uses everything above.
};

void LiveAnalysis::Worker::run()
{
    std::unique_lock lock(m_mutex);
    while (!m_isEnding) {
        if (!m_hasWork || !m_newest) {
            m_changed.wait(lock);
            continue;
        }
        m_hasWork = false;
        std::shared_ptr<const CvxCPP::Image> image = m_newest;
        const std::uint64_t clearCount = m_clearCount;
        lock.unlock();

        const auto start = steady_clock::now();
        const Deliver deliver = m_analyse(image);
        image.reset();
        const auto end = steady_clock::now();
        if (deliver)
            m_report(deliver, clearCount);

        lock.lock();
        const auto next = start + std::max<steady_clock::duration>(m_minInterval, restFactor * (end - start));
        m_changed.wait_until(lock, next, [this] { return m_isEnding; });
    }
}

LiveAnalysis::LiveAnalysis(Analyse analyse, double maxRate, QObject *parent) : QObject(parent)
{
    const auto report = [this](const Deliver &deliver, std::uint64_t clearCount) {
        const auto deliverIfPresent = [this, deliver, clearCount] {
            if (clearCount == m_worker->clearCount())
                deliver();
        };
        QMetaObject::invokeMethod(this, deliverIfPresent, Qt::QueuedConnection);
    };
    m_worker = std::make_unique<Worker>(std::move(analyse), maxRate, report);
}

LiveAnalysis::~LiveAnalysis() = default;

void LiveAnalysis::take(const std::shared_ptr<const CvxCPP::Image> &image)
{
    m_worker->take(image);
}

void LiveAnalysis::repeat()
{
    m_worker->repeat();
}

void LiveAnalysis::clear()
{
    m_worker->clear();
}
