#include "tools/imageviewer/files/RecordingSink.h"

RecordingSink::RecordingSink(RecordingTarget &target, std::uint64_t maxImages, double maxSeconds)
    : m_target(target), m_maxImages(maxImages), m_maxSeconds(maxSeconds)
{ }
void RecordingSink::take(const std::shared_ptr<const CvxCPP::Image> &image)
{
    m_target.add(image);
}
double RecordingSink::seconds() const
{
    return 0;
}
bool RecordingSink::hasFormatChanged() const
{
    return m_hasFormatChanged;
}
bool RecordingSink::isFull(Clock::time_point) const
{
    return m_isComplete;
}
