#pragma once

#include <chrono>

/// Decides when a search starts, when its answers have settled, which searches count missing answers, and
/// when the consumer is told about news. Every function takes the current time. Not thread-safe.
class SearchSchedule
{
public:
    using Time = std::chrono::steady_clock::time_point;

    /// A camera answers within this time.
    static constexpr std::chrono::milliseconds maxAnswerDelay{1000};

    /// Starts a search. Returns true if the search counts missing answers: the previous search that counted
    /// them was long enough ago for every camera to be asked several times.
    bool start(Time now);

    /// Records that a camera has been found or that the data of a camera has changed.
    void noteNews(Time now);

    /// Returns true if the consumer has to be told about news now: once per search, when all cameras should
    /// have answered.
    bool takeReport(Time now);

    /// Ends the search if its answers have settled. Returns true if the search has ended.
    bool endIfSettled(Time now);

    bool isSearching() const { return m_isSearching; }

    /// Returns true if the result of the last search is so recent that a consumer gets it without a new
    /// search.
    bool isResultRecent(Time now) const;

    /// Makes the next search start as soon as possible.
    void hasten(Time now) { m_nextSearch = now; }

    /// Returns the time at which the thread starts the next search by itself.
    Time nextSearch() const { return m_nextSearch; }

    /// Returns the time of the next event: the end of a search, the start of one, or a report.
    Time nextDeadline() const;

private:
    Time settleTime() const;

    bool m_isSearching = false;
    bool m_hasSearched = false; // True after the first search has started.
    Time m_start; // The start of the last search.
    Time m_countingStart; // The start of the last search that counts missing answers.
    Time m_lastNews;
    Time m_end; // The end of the last search.
    Time m_nextSearch; // The time at which a search starts even if no consumer requests one.
    Time m_lastReport;
    Time m_nextReport = Time::max(); // Time::max() if there is no news.
};
