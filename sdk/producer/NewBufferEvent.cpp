#include "sdk/producer/NewBufferEvent.h"

#include <cstring>
#include <utility>

using namespace GenTL;

NewBufferEvent::NewBufferEvent(std::shared_ptr<BufferPool> pool)
    : m_pool(std::move(pool)), m_state(m_pool->registerEvent())
{ }

GC_ERROR NewBufferEvent::take(void *buffer, std::size_t *size, std::uint64_t milliseconds)
{
    return m_pool->fetch(*m_state, buffer, size, milliseconds);
}

GC_ERROR NewBufferEvent::dataInfo(
    const void *data, EVENT_DATA_INFO_CMD command, const InfoOutput &output) const
{
    EVENT_NEW_BUFFER_DATA event;
    std::memcpy(&event, data, sizeof event);
    switch (command) {
    case EVENT_DATA_ID:
        return output.writePointer(event.BufferHandle);
    case EVENT_DATA_VALUE:
        return output.writePointer(event.pUserPointer);
    default:
        return failUnknownCommand(command);
    }
}

Event::Counts NewBufferEvent::counts() const
{
    return {EVENT_NEW_BUFFER, m_pool->counts().awaitingDelivery, m_pool->fired(*m_state),
        sizeof(EVENT_NEW_BUFFER_DATA), sizeof(void *)};
}

void NewBufferEvent::discard()
{
    m_pool->flush(ACQ_QUEUE_OUTPUT_DISCARD);
}

void NewBufferEvent::kill()
{
    m_pool->kill(*m_state);
}

void NewBufferEvent::close()
{
    m_pool->unregisterEvent();
}
