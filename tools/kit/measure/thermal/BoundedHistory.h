#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <vector>

/// One reading, or several successive readings that were merged. Times are seconds since the start.
struct HistoryPoint
{
    double first = 0; ///< Time of the first reading.
    double last = 0; ///< Time of the last reading.
    double mean = 0;
    double minimum = 0;
    double maximum = 0;
    std::uint64_t count = 1; ///< Number of the readings.
    bool isAfterGap = false; ///< Readings before this point are missing.

    double middle() const { return (first + last) / 2; }
};

/// Readings over any time in bounded memory: the newest ones are kept as they are; the older the readings
/// are, the more of them are merged, so a point covers about the same share of its age.
class BoundedHistory
{
public:
    /// Points of one level. Each point of level n consists of about 2^n readings.
    static constexpr std::size_t levelCapacity = 600;
    static constexpr std::size_t maxLevels = 24; ///< Enough for 300 years of one reading per second.

    /// @param seconds Later than at all calls before.
    void add(double seconds, double value);

    /// Marks that readings are missing between the last one and the next one.
    void addGap() { m_isGap = true; }

    void clear();

    bool isEmpty() const { return m_levels.empty(); }
    std::size_t size() const; ///< Number of the points.
    std::uint64_t count() const { return m_count; } ///< Number of the readings.
    const HistoryPoint &newest() const { return m_levels.front().back(); } ///< Unless isEmpty().

    /// Returns the points that end at this time or later, the oldest one first.
    std::vector<HistoryPoint> since(double seconds) const;
    std::vector<HistoryPoint> points() const;

private:
    void push(std::size_t level, const HistoryPoint &point);

    std::vector<std::deque<HistoryPoint>> m_levels; // The newest points are in the first level.
    std::uint64_t m_count = 0;
    bool m_isGap = false;
};

/// Returns the point that covers both; `first` is the earlier one.
HistoryPoint merged(const HistoryPoint &first, const HistoryPoint &second);

/// Merges successive points until there are at most `maxCount`.
std::vector<HistoryPoint> thinned(const std::vector<HistoryPoint> &points, std::size_t maxCount);
