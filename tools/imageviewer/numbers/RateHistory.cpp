#include "tools/imageviewer/numbers/RateHistory.h"

#include <algorithm>

void RateHistory::add(std::int64_t milliseconds, std::uint64_t delivered, std::uint64_t losses)
{
    constexpr std::int64_t second = 1000;
    const Sample sample{milliseconds, delivered, losses};
    if (!m_start) {
        m_start = sample;
        return;
    }
    const std::int64_t elapsed = milliseconds - m_start->milliseconds;
    if (elapsed < second)
        return;
    // A program that was stopped for a while has one mean for all seconds that it has missed.
    const std::int64_t count = (elapsed + second / 2) / second;
    Second next;
    next.rate = static_cast<double>(delivered - m_start->delivered) * second / static_cast<double>(elapsed);
    next.isKnown = true;
    for (std::int64_t index = 0; index < std::min<std::int64_t>(count, length); ++index)
        append(next);
    m_seconds.last().losses = losses - m_start->losses;
    m_start = sample;
}

void RateHistory::append(const Second &second)
{
    m_seconds.append(second);
    if (m_seconds.size() > length)
        m_seconds.removeFirst();
}

void RateHistory::clear()
{
    m_seconds.clear();
    m_start.reset();
}

QVector<RateHistory::Second> RateHistory::seconds() const
{
    return QVector<Second>(length - m_seconds.size()) + m_seconds;
}

std::uint64_t RateHistory::recentLosses(int seconds) const
{
    std::uint64_t losses = 0;
    for (int index = std::max(0, m_seconds.size() - seconds); index < m_seconds.size(); ++index)
        losses += m_seconds[index].losses;
    return losses;
}

double RateHistory::highestRate() const
{
    double highest = 0;
    for (const Second &second : m_seconds)
        highest = std::max(highest, second.rate);
    return highest;
}
