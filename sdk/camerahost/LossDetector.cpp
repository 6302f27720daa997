#include "sdk/camerahost/LossDetector.h"

#include <algorithm>

namespace {

using std::chrono::milliseconds;

constexpr milliseconds checkInterval(1000);
constexpr milliseconds retryInterval(100); // After a failed check.
constexpr int maxToleratedFailures = 1; // A single access may fail on a busy link.

} // namespace

void LossDetector::noteSuccess(TimePoint now)
{
    m_failures = 0;
    m_nextCheck = now + checkInterval;
}

void LossDetector::noteSuspicion(TimePoint now)
{
    m_nextCheck = std::min(m_nextCheck, m_failures > 0 ? now + retryInterval : now);
}

void LossDetector::noteFailure(TimePoint now)
{
    ++m_failures;
    m_nextCheck = now + retryInterval;
}

bool LossDetector::isLost() const
{
    return m_failures > maxToleratedFailures;
}
