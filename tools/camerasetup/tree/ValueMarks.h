#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <chrono>

/// Decides which values are marked because they have changed by themselves, and how strongly. A change soon
/// after a person has changed the value, or after it was shown for the first time, does not count.
class ValueMarks
{
public:
    using Clock = std::chrono::steady_clock;

    static constexpr std::chrono::milliseconds duration{1000};
    static constexpr std::chrono::milliseconds quietTime{1000};

    void add(const QString &name, Clock::time_point now);

    /// The next changes of the feature do not count; takes a mark away.
    void silence(const QString &name, Clock::time_point now);

    /// Returns 1 for a new mark, falling to 0.
    double strength(const QString &name, Clock::time_point now) const;

    /// Forgets what is over. Returns the features that had a mark since the previous call.
    QStringList advance(Clock::time_point now);

    bool isEmpty() const { return m_starts.isEmpty(); }

private:
    QHash<QString, Clock::time_point> m_starts;
    QHash<QString, Clock::time_point> m_quietEnds;
};
