#pragma once

#include "sdk/producer/LossEvent.h"

#include <map>
#include <memory>
#include <mutex>

/// Fires the registered events of a device when its camera is lost. Any thread may call any function.
class LossNotifier
{
public:
    /// Returns a new event of this type. If the camera is lost already, the event is fired at once, because a
    /// consumer could not find out otherwise that it has come too late.
    std::shared_ptr<LossEvent> createEvent(GenTL::EVENT_TYPE type);

    /// Fires all events. Further calls do nothing.
    void cameraLost();

private:
    std::mutex m_mutex; // Guards the members below.
    bool m_isLost = false;
    std::map<GenTL::EVENT_TYPE, std::weak_ptr<LossEvent>> m_events; // The last one of each type.
};
