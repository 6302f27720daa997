#include "tools/camerasetup/values/EditSequence.h"

bool EditSequence::continues(const FeatureEdit &edit, Clock::time_point now)
{
    const bool isSame = m_last && m_last->name == edit.name && m_last->selectors == edit.selectors
        && now - m_last->time <= maxGap;
    m_last = Last{edit.name, edit.selectors, now};
    return isSame;
}
