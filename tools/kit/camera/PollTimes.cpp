#include "tools/kit/camera/PollTimes.h"

#include <algorithm>

using std::chrono::milliseconds;

void PollTimes::wasRead(const QString &name, milliseconds interval, Clock::time_point now)
{
    if (interval.count() == 0)
        m_dueTimes.remove(name);
    else
        m_dueTimes.insert(name, now + std::max(interval, minInterval));
}

QStringList PollTimes::takeDue(Clock::time_point now)
{
    QStringList due;
    for (auto time = m_dueTimes.begin(); time != m_dueTimes.end();) {
        if (time.value() > now) {
            ++time;
            continue;
        }
        due.append(time.key());
        time = m_dueTimes.erase(time);
    }
    return due;
}

std::optional<milliseconds> PollTimes::untilNext(Clock::time_point now) const
{
    if (m_dueTimes.isEmpty())
        return std::nullopt;
    const auto next = *std::min_element(m_dueTimes.begin(), m_dueTimes.end());
    return std::max(std::chrono::ceil<milliseconds>(next - now), milliseconds(0));
}
