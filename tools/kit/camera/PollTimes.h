#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>

/// Decides when a feature is read again because its value may have changed by itself.
class PollTimes
{
public:
    using Clock = std::chrono::steady_clock;

    static constexpr std::chrono::milliseconds minInterval{200}; ///< At most five reads per second.

    /// The feature was read. It is due again after the interval, or never if the interval is 0.
    void wasRead(const QString &name, std::chrono::milliseconds interval, Clock::time_point now);

    void remove(const QString &name) { m_dueTimes.remove(name); }
    void clear() { m_dueTimes.clear(); }

    /// Returns the features that are due, which are not due again before they were read.
    QStringList takeDue(Clock::time_point now);

    /// Returns the time until the next feature is due, at least 0; no value if there is none.
    std::optional<std::chrono::milliseconds> untilNext(Clock::time_point now) const;

private:
    QHash<QString, Clock::time_point> m_dueTimes;
};
