#include "tools/kit/measure/run/FreshImageRule.h"

#include <utility>

namespace {

constexpr unsigned freeRunningUnderWay = 2;
constexpr unsigned periodsUntilFresh = freeRunningUnderWay + 1;

} // namespace

FreshImageRule::FreshImageRule(std::uint64_t moment, const Timing &timing)
    : m_moment(moment), m_timing(timing), m_underWay(timing.isTriggered ? 0 : freeRunningUnderWay)
{ }

bool FreshImageRule::isFresh(const CvxCPP::ImageInfo &image)
{
    if (m_isFresh)
        return true;
    if (image.receivedAt <= m_moment)
        return false;
    const std::uint64_t previous = std::exchange(m_previous, image.receivedAt);
    if (!m_timing.period && !m_timing.isTriggered) {
        if (previous == 0)
            return false; // Only the next image tells the period.
        m_timing.period = std::chrono::nanoseconds(image.receivedAt - previous);
    }
    const bool isUnderWay = m_underWay > 0 && m_underWay-- > 0;
    const auto earliest = m_timing.exposure + m_timing.period.value_or(std::chrono::nanoseconds(0));
    m_isFresh = !isUnderWay && image.receivedAt > m_moment + static_cast<std::uint64_t>(earliest.count());
    return m_isFresh;
}

std::chrono::nanoseconds FreshImageRule::delay() const
{
    const auto period = m_timing.period.value_or(m_timing.exposure);
    return m_timing.exposure + (m_timing.isTriggered ? period : periodsUntilFresh * period);
}
