#include "sdk/producer/LossNotifier.h"

using namespace GenTL;

std::shared_ptr<LossEvent> LossNotifier::createEvent(EVENT_TYPE type)
{
    auto event = std::make_shared<LossEvent>(type);
    const std::lock_guard lock(m_mutex);
    if (m_isLost)
        event->fire();
    else
        m_events[type] = event;
    return event;
}

void LossNotifier::cameraLost()
{
    std::map<EVENT_TYPE, std::weak_ptr<LossEvent>> events;
    {
        const std::lock_guard lock(m_mutex);
        m_isLost = true;
        events.swap(m_events);
    }
    for (const auto &[type, entry] : events)
        if (const std::shared_ptr<LossEvent> event = entry.lock())
            event->fire();
}
