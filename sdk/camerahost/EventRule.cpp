#include "sdk/camerahost/EventRule.h"

namespace {

constexpr int maxAborts = 3; // One may be left over from the end of an earlier wait.
constexpr int maxRegistrations = 10;
constexpr int maxFailures = 10;

} // namespace

EventAction EventRule::next(GenTL::GC_ERROR code, std::size_t size)
{
    const int aborts = code == GenTL::GC_ERR_ABORT ? m_aborts + 1 : 0;
    const int failures = m_failures + 1;
    m_aborts = aborts;
    m_failures = 0;
    switch (code) {
    case GenTL::GC_ERR_SUCCESS:
        return size >= sizeof(GenTL::BUFFER_HANDLE) ? EventAction::TakeBuffer : EventAction::Pause;
    case GenTL::GC_ERR_TIMEOUT:
        return EventAction::Continue;
    case GenTL::GC_ERR_ABORT:
        if (aborts > maxAborts * maxRegistrations)
            return EventAction::Leave;
        return aborts % maxAborts == 0 ? EventAction::RegisterAgain : EventAction::Continue;
    case GenTL::GC_ERR_IO:
    case GenTL::GC_ERR_ERROR:
        return EventAction::PauseAndCheck;
    case GenTL::GC_ERR_INVALID_HANDLE:
    case GenTL::GC_ERR_NOT_INITIALIZED:
        return EventAction::Leave;
    default:
        m_failures = failures;
        return failures < maxFailures ? EventAction::Pause : EventAction::Leave;
    }
}
