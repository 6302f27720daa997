#include "tools/camerasetup/tree/ValueMarks.h"

#include <algorithm>

void ValueMarks::add(const QString &name, Clock::time_point now)
{
    const auto quietEnd = m_quietEnds.constFind(name);
    if (quietEnd == m_quietEnds.constEnd() || now >= *quietEnd)
        m_starts.insert(name, now);
}

void ValueMarks::silence(const QString &name, Clock::time_point now)
{
    for (auto quietEnd = m_quietEnds.begin(); quietEnd != m_quietEnds.end();)
        quietEnd = now >= *quietEnd ? m_quietEnds.erase(quietEnd) : std::next(quietEnd);
    m_quietEnds.insert(name, now + quietTime);
    m_starts.remove(name);
}

double ValueMarks::strength(const QString &name, Clock::time_point now) const
{
    const auto start = m_starts.constFind(name);
    if (start == m_starts.constEnd())
        return 0;
    const std::chrono::duration<double> age = now - *start;
    return std::clamp(1 - age / std::chrono::duration<double>(duration), 0.0, 1.0);
}

QStringList ValueMarks::advance(Clock::time_point now)
{
    const QStringList names = m_starts.keys();
    for (const QString &name : names) {
        if (now - m_starts.value(name) >= duration)
            m_starts.remove(name);
    }
    return names;
}
