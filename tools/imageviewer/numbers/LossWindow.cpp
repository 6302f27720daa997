#include "tools/imageviewer/numbers/LossWindow.h"

void LossWindow::add(std::int64_t milliseconds, const CvxCPP::StreamStatistics &totals)
{
    constexpr std::int64_t length = 10000;
    m_samples.push_back({milliseconds, {totals.lost, totals.incomplete, totals.underruns}});
    while (m_samples.size() > 1 && m_samples[1].milliseconds <= milliseconds - length)
        m_samples.pop_front();
}

RecentLosses LossWindow::losses() const
{
    if (m_samples.empty())
        return {};
    const RecentLosses &before = m_samples.front().totals;
    const RecentLosses &now = m_samples.back().totals;
    return {now.lost - before.lost, now.incomplete - before.incomplete, now.underruns - before.underruns};
}
