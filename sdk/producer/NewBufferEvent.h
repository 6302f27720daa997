#pragma once

#include "sdk/producer/BufferPool.h"
#include "sdk/producer/Event.h"

/// The event of a data stream that reports each filled buffer. Its queue is the output queue of the stream.
class NewBufferEvent final : public Event
{
public:
    explicit NewBufferEvent(std::shared_ptr<BufferPool> pool);

    GenTL::GC_ERROR take(void *buffer, std::size_t *size, std::uint64_t milliseconds) override;
    GenTL::GC_ERROR dataInfo(
        const void *data, GenTL::EVENT_DATA_INFO_CMD command, const InfoOutput &output) const override;
    Counts counts() const override;
    void discard() override;
    void kill() override;
    void close() override;

private:
    const std::shared_ptr<BufferPool> m_pool;
    const std::shared_ptr<EventState> m_state;
};
