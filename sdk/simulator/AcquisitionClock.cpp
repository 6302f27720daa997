#include "sdk/simulator/AcquisitionClock.h"

#include <algorithm>

using Id = RegisterId;

namespace {

constexpr double clockTicksPerSecond = 1e9; // Nanoseconds.

} // namespace

void AcquisitionClock::setPeriod(std::int64_t period, std::int64_t now)
{
    m_period = period;
    m_next = std::min(m_next, now + period);
}

void AcquisitionClock::imageTaken(std::int64_t now)
{
    m_next = std::max(m_next + m_period, now - m_period);
}

std::int64_t transferTime(const RegisterBank &bank)
{
    if (!bank.isOn(Id::DeviceLinkThroughputLimitMode))
        return 0;
    return static_cast<std::int64_t>(clockTicksPerSecond * static_cast<double>(bank.integer(Id::PayloadSize))
        / static_cast<double>(bank.integer(Id::DeviceLinkThroughputLimit)));
}

std::int64_t imagePeriod(const RegisterBank &bank)
{
    double period = 0;
    if (bank.isOn(Id::AcquisitionFrameRateEnable))
        period = clockTicksPerSecond / bank.real(Id::AcquisitionFrameRate);
    if (bank.isOn(Id::AcquisitionLineRateEnable))
        period = std::max(period,
            clockTicksPerSecond * static_cast<double>(bank.integer(Id::Height))
                / bank.real(Id::AcquisitionLineRate));
    return std::max(static_cast<std::int64_t>(period), transferTime(bank));
}
