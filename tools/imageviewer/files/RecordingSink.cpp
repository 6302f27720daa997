#include "tools/imageviewer/files/RecordingSink.h"

namespace {

bool hasSameFormat(const CvxCPP::ImageInfo &left, const CvxCPP::ImageInfo &right)
{
    // The number of delivered lines may vary, for example of a line-scan camera.
    return left.pixelFormat == right.pixelFormat && left.width == right.width;
}

} // namespace

RecordingSink::RecordingSink(RecordingTarget &target, std::uint64_t maxImages, double maxSeconds)
    : m_target(target), m_maxImages(maxImages), m_maxSeconds(maxSeconds)
{ }

void RecordingSink::take(const std::shared_ptr<const CvxCPP::Image> &image)
{
    const Decision decision = decide(image->GetInfo());
    if (decision.isTaken)
        m_target.add(image);
    if (decision.isLast)
        emit complete();
}

RecordingSink::Decision RecordingSink::decide(const CvxCPP::ImageInfo &info)
{
    const std::lock_guard lock(m_mutex);
    if (m_isComplete)
        return {};
    if (!m_start) {
        m_start = Clock::now();
        m_first = info;
    }
    Decision decision;
    decision.isTaken = !isTimeOver();
    m_images += decision.isTaken ? 1 : 0;
    m_hasFormatChanged = m_hasFormatChanged || !hasSameFormat(m_first, info);
    m_isComplete = !decision.isTaken || (m_maxImages > 0 && m_images >= m_maxImages);
    decision.isLast = m_isComplete;
    return decision;
}

bool RecordingSink::isTimeOver() const
{
    return m_maxSeconds > 0 && m_start
        && std::chrono::duration<double>(Clock::now() - *m_start).count() >= m_maxSeconds;
}

double RecordingSink::seconds() const
{
    const std::lock_guard lock(m_mutex);
    return m_start ? std::chrono::duration<double>(Clock::now() - *m_start).count() : 0;
}

bool RecordingSink::isComplete() const
{
    const std::lock_guard lock(m_mutex);
    return m_isComplete || isTimeOver();
}

bool RecordingSink::hasFormatChanged() const
{
    const std::lock_guard lock(m_mutex);
    return m_hasFormatChanged;
}
