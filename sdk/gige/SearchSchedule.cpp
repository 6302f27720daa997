#include "sdk/gige/SearchSchedule.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace {

constexpr auto searchInterval = 2s;
constexpr auto maxCountingInterval = 3s; // Frequent searches of a consumer delay a removal no longer.
constexpr auto minCountingInterval = 1900ms;
constexpr auto minSettleTime = 150ms; // After the start of the search.
constexpr auto quietTime = 100ms; // After the last news.
constexpr auto resultLifetime = 100ms;

} // namespace

bool SearchSchedule::start(Time now)
{
    const bool countsMissing = !m_hasSearched || now - m_countingStart >= minCountingInterval;
    if (countsMissing)
        m_countingStart = now;
    m_hasSearched = true;
    m_isSearching = true;
    m_start = now;
    m_lastNews = now;
    m_nextSearch = std::min(now + searchInterval, m_countingStart + maxCountingInterval);
    return countsMissing;
}

void SearchSchedule::noteNews(Time now)
{
    m_lastNews = now;
    if (m_nextReport != Time::max())
        return;
    const bool isReportUsed = m_lastReport > m_start;
    m_nextReport = isReportUsed ? m_nextSearch + maxAnswerDelay : std::max(now, m_start + maxAnswerDelay);
}

bool SearchSchedule::takeReport(Time now)
{
    if (now < m_nextReport)
        return false;
    m_nextReport = Time::max();
    m_lastReport = now;
    return true;
}

bool SearchSchedule::endIfSettled(Time now)
{
    if (!m_isSearching || now < settleTime())
        return false;
    m_isSearching = false;
    m_end = now;
    return true;
}

bool SearchSchedule::isResultRecent(Time now) const
{
    return m_hasSearched && !m_isSearching && now - m_end < resultLifetime;
}

SearchSchedule::Time SearchSchedule::nextDeadline() const
{
    return std::min(m_isSearching ? settleTime() : m_nextSearch, m_nextReport);
}

SearchSchedule::Time SearchSchedule::settleTime() const
{
    const Time settled = std::max(m_start + minSettleTime, m_lastNews + quietTime);
    return std::min(settled, m_start + maxAnswerDelay);
}
