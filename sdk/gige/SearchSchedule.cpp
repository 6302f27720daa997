#include "sdk/gige/SearchSchedule.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace {

constexpr auto searchInterval = 2s; // Between searches that count missing answers.
constexpr auto minCountingInterval = 1900ms; // Long enough for all requests to a silent camera.
constexpr auto minSettleTime = 150ms; // After the start of the search.
constexpr auto quietTime = 100ms; // After the last change.
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
    m_lastChange = now;
    m_nextSearch = m_countingStart + searchInterval;
    return countsMissing;
}

void SearchSchedule::noteChange(Time now)
{
    m_lastChange = now;
    if (m_nextReport != Time::max())
        return;
    const bool hasReported = m_lastReport > m_start;
    m_nextReport = hasReported ? m_nextSearch + maxAnswerDelay : std::max(now, m_start + maxAnswerDelay);
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
    const Time settled = std::max(m_start + minSettleTime, m_lastChange + quietTime);
    return std::min(settled, m_start + maxAnswerDelay);
}
