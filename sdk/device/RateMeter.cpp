#include "sdk/device/RateMeter.h"

#include <algorithm>

void RateMeter::add(const Sample &sample)
{
    if (!m_samples.empty() && sample.time < m_samples.back().time + sampleInterval)
        return;
    m_samples.push_back(sample);
    while (m_samples.size() > 1 && m_samples[1].time + window <= sample.time)
        m_samples.pop_front();
}

RateMeter::Rates RateMeter::rates(const Sample &now) const
{
    constexpr std::uint64_t minImages = 2;
    if (m_samples.empty() || now.images < minImages)
        return {};
    const auto isRecent = [&](const Sample &sample) { return sample.time + window > now.time; };
    const auto recent = std::find_if(m_samples.begin(), m_samples.end(), isRecent);
    const Sample &start = recent == m_samples.begin() ? *recent : *std::prev(recent);
    const double seconds = std::chrono::duration<double>(now.time - start.time).count();
    if (seconds <= 0)
        return {};
    return {static_cast<double>(now.images - start.images) / seconds,
        static_cast<double>(now.bytes - start.bytes) / seconds};
}
