#pragma once

#include "sdk/producer/Event.h"
#include "sdk/producer/EventState.h"

/// The events of a device that report that the camera is lost: EVENT_ERROR with an error code and a text, or
/// EVENT_MODULE with an event ID and the time. Such an event is fired once.
class LossEvent final : public Event
{
public:
    /// @param type EVENT_ERROR or EVENT_MODULE.
    explicit LossEvent(GenTL::EVENT_TYPE type) : m_type(type) { }

    /// Fires the event.
    void fire();

    GenTL::GC_ERROR take(void *buffer, std::size_t *size, std::uint64_t milliseconds) override;
    GenTL::GC_ERROR dataInfo(
        const void *data, GenTL::EVENT_DATA_INFO_CMD command, const InfoOutput &output) const override;
    Counts counts() const override;
    void discard() override;
    void kill() override;
    void close() override;

private:
    const GenTL::EVENT_TYPE m_type;
    mutable std::mutex m_mutex; // Guards the members below.
    std::condition_variable m_changed;
    EventState m_state;
    std::uint64_t m_lossTime = 0; // Nanoseconds of the system clock; 0 while no event is in the queue.
};
