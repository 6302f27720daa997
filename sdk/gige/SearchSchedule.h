#pragma once

#include <chrono>

/// Decides when a search starts, when its answers have settled, which searches count missing answers, and
/// when the consumer is told about changes. Every function takes the current time. Not thread-safe.
class SearchSchedule
{
public:
    using Time = std::chrono::steady_clock::time_point;

    /// A camera answers within this time.
    static constexpr std::chrono::milliseconds maxAnswerDelay{1000};

    /// Starts a search. Returns true if the search counts missing answers: the previous search that counted
    /// them was long enough ago for every camera to be asked several times. The thread starts such a search
    /// two seconds after the previous one, even if consumers search in between, so that they do not delay
    /// the removal of a camera.
    bool start(Time now);

    /// Records that a camera has been found or that the data of a camera has changed.
    void noteChange(Time now);

    /// Returns true if the consumer has to be told about changes now: when all cameras should have answered.
    /// Changes that follow this report are reported together, when all cameras should have answered the next
    /// search.
    bool takeReport(Time now);

    /// Ends the search if its answers have settled. Returns true if the search has ended.
    bool endIfSettled(Time now);

    bool isSearching() const { return m_isSearching; }

    /// Returns true if the result of the last search is so recent that a consumer gets it without a new
    /// search.
    bool isResultRecent(Time now) const;

    /// Makes the next search start as soon as possible.
    void searchSoon(Time now) { m_nextSearch = now; }

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
    Time m_lastChange;
    Time m_end; // The end of the last search.
    Time m_nextSearch; // The time at which a search starts even if no consumer requests one.
    Time m_lastReport;
    Time m_nextReport = Time::max(); // Time::max() if there is no change to report.
};
