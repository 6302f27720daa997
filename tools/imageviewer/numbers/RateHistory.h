#pragma once

#include <QVector>

#include <cstdint>
#include <optional>

/// The images per second and the losses of the last minute, second by second.
class RateHistory
{
public:
    struct Second
    {
        double rate = 0; ///< Images that were delivered in this second.
        std::uint64_t losses = 0; ///< Images that were lost or are incomplete.
        bool isKnown = false; ///< False before the first sample.
    };

    static constexpr int length = 60;

    /// Takes the counters at a time.
    /// @param milliseconds Of a clock that never goes back.
    /// @param delivered Images since the start.
    /// @param losses Images that were lost or are incomplete, since the start.
    void add(std::int64_t milliseconds, std::uint64_t delivered, std::uint64_t losses);

    /// Forgets everything, for example when another camera is opened.
    void clear();

    /// Returns the complete seconds, the latest one last; always `length` of them.
    QVector<Second> seconds() const;

    /// Returns the losses of the last complete seconds.
    std::uint64_t recentLosses(int seconds) const;

    double highestRate() const;

private:
    struct Sample
    {
        std::int64_t milliseconds;
        std::uint64_t delivered;
        std::uint64_t losses;
    };

    void append(const Second &second);

    QVector<Second> m_seconds; // The complete ones, at most `length`.
    std::optional<Sample> m_start; // The start of the second that is not complete yet.
};
