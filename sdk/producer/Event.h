#pragma once

#include "sdk/producer/InfoOutput.h"
#include "sdk/producer/Module.h"

/// A registered event, which an EVENT_HANDLE identifies. Any thread may call any function; only take() waits.
/// close() unregisters the event and ends all waits.
class Event : public Module
{
public:
    static constexpr const char *handleName = "a registered event";

    /// Waits for the oldest event, removes it and writes its data. Without a buffer, only removes it. Returns
    /// GC_ERR_SUCCESS, GC_ERR_TIMEOUT, GC_ERR_ABORT after kill() or close(), or GC_ERR_BUFFER_TOO_SMALL,
    /// which leaves the event in the queue.
    virtual GenTL::GC_ERROR take(void *buffer, std::size_t *size, std::uint64_t milliseconds) = 0;

    /// Writes a part of the data of take(). Returns GC_ERR_SUCCESS, GC_ERR_BUFFER_TOO_SMALL or
    /// GC_ERR_NOT_IMPLEMENTED.
    /// @param data As many bytes as counts().dataSize.
    virtual GenTL::GC_ERROR dataInfo(
        const void *data, GenTL::EVENT_DATA_INFO_CMD command, const InfoOutput &output) const = 0;

    struct Counts
    {
        GenTL::EVENT_TYPE type;
        std::size_t waiting; ///< Events in the queue.
        std::uint64_t fired; ///< Since the registration.
        std::size_t dataSize; ///< Bytes of take().
        std::size_t maxInfoSize; ///< Most bytes of dataInfo().
    };
    virtual Counts counts() const = 0;

    /// Removes all events from the queue.
    virtual void discard() = 0;

    /// Ends one wait; if there is none, the next one.
    virtual void kill() = 0;

    /// Writes the value of an info command to a complete output. Returns GC_ERR_SUCCESS,
    /// GC_ERR_BUFFER_TOO_SMALL, or GC_ERR_NOT_IMPLEMENTED for an unknown command.
    GenTL::GC_ERROR info(GenTL::EVENT_INFO_CMD command, const InfoOutput &output) const;
};
