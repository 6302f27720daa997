#pragma once

#include "CvxCPP/Device.h"
#include "sdk/device/DeviceErrors.h"
#include "sdk/device/ImageQueue.h"
#include "sdk/device/RateMeter.h"
#include "sdk/process/Timing.h"

#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <string>

/// A stream as the library sees it: continues with a new queue when the lost device is opened again. Every
/// function may be called from any thread.
class StreamCore
{
public:
    /// Called with a sentence when the host of this number has damaged the shared memory.
    using ReportDamage = std::function<void(std::uint64_t host, const std::string &reason)>;

    StreamCore(
        std::uint32_t buffers, CvxCPP::StreamPolicy policy, ResultMaker results, ReportDamage reportDamage);

    std::uint32_t buffers() const { return m_buffers; } ///< The number that the program has asked for.
    CvxCPP::StreamPolicy policy() const { return m_policy; }

    /// Begins, or continues after a loss, with the images of this host. Has no effect after stopped().
    void started(std::shared_ptr<const ImageQueue> queue, std::uint64_t host);
    /// This host is gone: wakes the waiting threads and discards the images that were not fetched. `reason`
    /// is a sentence for people.
    void lost(std::uint64_t host, const std::string &reason);
    /// The stream was stopped for good: wakes the waiting threads.
    void stopped();

    /// Samples the counters for the rates. Call this function several times per second.
    void sample(TimePoint now);

    CvxCPP::CvxResult waitForImage(Milliseconds timeout, std::shared_ptr<const CvxCPP::Image> &image);
    CvxCPP::StreamStatistics statistics() const;

private:
    enum class State
    {
        Running,
        Lost,
        Stopped
    };

    /// What a thread that waits for an image has to know.
    struct Snapshot
    {
        State state = State::Lost;
        std::shared_ptr<const ImageQueue> queue;
        std::uint64_t host = 0;
        std::uint64_t losses = 0;
        std::uint32_t signals = 0; // See StreamRing::waitForImage().
    };

    Snapshot snapshot() const;
    bool takeUnreportedLoss();
    void waitForChange(const Snapshot &known, TimePoint deadline);
    std::shared_ptr<const CvxCPP::Image> take(const Snapshot &known);
    CvxCPP::CvxResult lostResult() const;
    CvxCPP::StreamStatistics counters() const;

    const std::uint32_t m_buffers;
    const CvxCPP::StreamPolicy m_policy;
    const ResultMaker m_results;
    const ReportDamage m_reportDamage;

    mutable std::mutex m_mutex; // Guards all members below.
    std::condition_variable m_changed; // Wakes the threads that wait while there is no queue.
    State m_state = State::Lost;
    std::shared_ptr<const ImageQueue> m_queue; // Null while the device is lost.
    std::uint64_t m_host = 0; // Number of the host that fills the queue.
    std::uint64_t m_losses = 0;
    std::uint64_t m_reportedLosses = 0; // The value of m_losses when a loss was last reported.
    std::string m_lossReason;
    CvxCPP::StreamStatistics m_base; // The counters of earlier hosts.
    RateMeter m_rates;
};
