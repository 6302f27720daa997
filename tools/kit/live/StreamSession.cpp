#include "tools/kit/live/StreamSession.h"

using CvxCPP::CvxResult;
using CvxCPP::StreamStatistics;

namespace {

/// How soon the thread of an abandoned session ends.
constexpr std::chrono::milliseconds waitInterval{100};

void addCounters(StreamStatistics &sum, const StreamStatistics &more)
{
    sum.delivered += more.delivered;
    sum.incomplete += more.incomplete;
    sum.lost += more.lost;
    sum.underruns += more.underruns;
    sum.skipped += more.skipped;
    sum.bytes += more.bytes;
    sum.reopenCount += more.reopenCount;
    sum.imagesPerSecond = more.imagesPerSecond;
    sum.bytesPerSecond = more.bytesPerSecond;
}

} // namespace

StreamSession::StreamSession() = default;

StreamSession::~StreamSession()
{
    abandon();
    stop();
}

CvxResult StreamSession::start(CvxCPP::Device &device, unsigned buffers)
{
    stop(); // A stream that has ended by itself is still here.
    if (m_isAbandoned)
        return {CvxCPP::CvxErrorClosed, {}};
    std::shared_ptr<CvxCPP::Stream> stream;
    CvxResult result = device.StartStream(buffers, CvxCPP::StreamPolicy::EveryImage, stream);
    if (!result)
        return result;
    {
        const std::lock_guard lock(m_mutex);
        m_stream = stream;
    }
    m_isStopping = m_isHanging = false;
    m_isRunning = m_isReceiving = true;
    m_thread = std::thread([this, stream] { receive(*stream); });
    return result;
}

void StreamSession::stop()
{
    if (!m_thread.joinable())
        return;
    m_isStopping = true;
    m_isHanging = !m_stream->Stop(); // Only this thread changes the pointer.
    m_thread.join();
    const std::lock_guard lock(m_mutex);
    (void)m_stream->GetStatistics(m_lastStatistics);
    addCounters(m_earlier, m_lastStatistics);
    m_stream.reset();
    m_endReason = {};
}

CvxResult StreamSession::endReason() const
{
    const std::lock_guard lock(m_mutex);
    return m_endReason;
}

void StreamSession::abandon()
{
    m_isAbandoned = true;
    m_sinks.close();
}

StreamStatistics StreamSession::statistics() const
{
    const std::lock_guard lock(m_mutex);
    StreamStatistics statistics = m_lastStatistics;
    if (m_stream)
        (void)m_stream->GetStatistics(statistics);
    return statistics;
}

StreamStatistics StreamSession::totals() const
{
    const std::lock_guard lock(m_mutex);
    StreamStatistics totals = m_earlier;
    StreamStatistics present;
    if (m_stream && m_stream->GetStatistics(present))
        addCounters(totals, present);
    return totals;
}

void StreamSession::receive(CvxCPP::Stream &stream)
{
    while (!m_isAbandoned && !m_isHanging) {
        std::shared_ptr<const CvxCPP::Image> image;
        CvxResult result = stream.WaitForImage(waitInterval, image);
        if (result) {
            m_sinks.take(image);
            continue;
        }
        // The SDK opens a lost camera again and continues the stream.
        if (result.code == CvxCPP::CvxErrorTimeout || result.code == CvxCPP::CvxErrorDeviceLost)
            continue;
        const std::lock_guard lock(m_mutex);
        m_endReason = std::move(result);
        break;
    }
    if (m_isAbandoned)
        (void)stream.Stop(); // Otherwise the destructor would wait for it, perhaps on the GUI thread.
    m_isRunning = false;
    if (!m_isStopping && !m_isAbandoned)
        emit ended();
    m_isReceiving = false;
}
