#pragma once

#include "sdk/producer/LastError.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <cstring>
#include <mutex>
#include <string>

/// What a registered event remembers beside its data. The mutex of the data guards it.
struct EventState
{
    std::uint64_t fired = 0; ///< Since the registration.
    std::uint64_t kills = 0; ///< Each one ends one wait.
    bool isClosed = false; ///< The event was unregistered.
};

/// Returns the time at which a wait of an event function ends. A larger timeout than a year, such as
/// GENTL_INFINITE, counts as a year, because it could not be added to a time.
inline std::chrono::steady_clock::time_point waitEnd(std::uint64_t milliseconds)
{
    constexpr std::uint64_t year = std::uint64_t(365) * 24 * 3600 * 1000;
    return std::chrono::steady_clock::now() + std::chrono::milliseconds(std::min(milliseconds, year));
}

/// Writes the data of an event to the outputs of EventGetData. Without a buffer, writes only the size.
/// Returns GC_ERR_SUCCESS or GC_ERR_BUFFER_TOO_SMALL.
inline GenTL::GC_ERROR writeEventData(const void *data, std::size_t dataSize, void *buffer, std::size_t *size)
{
    if (buffer && *size < dataSize)
        return fail(GenTL::GC_ERR_BUFFER_TOO_SMALL, "The event has " + std::to_string(dataSize) + " bytes.");
    if (buffer)
        std::memcpy(buffer, data, dataSize);
    *size = dataSize;
    return GenTL::GC_ERR_SUCCESS;
}

/// Waits until there is data. Returns GC_ERR_SUCCESS, GC_ERR_TIMEOUT, or GC_ERR_ABORT if the wait was killed
/// or the event was closed.
/// @param lock Holds the mutex that guards `state` and the data.
/// @param changed Is notified after each change.
template <typename HasData>
GenTL::GC_ERROR waitForEvent(std::unique_lock<std::mutex> &lock, std::condition_variable &changed,
    EventState &state, std::uint64_t milliseconds, HasData &&hasData)
{
    const auto isOver = [&] { return state.isClosed || state.kills > 0 || hasData(); };
    if (!isOver() && milliseconds > 0)
        changed.wait_until(lock, waitEnd(milliseconds), isOver);
    if (state.isClosed)
        return fail(GenTL::GC_ERR_ABORT, "The event was unregistered.");
    if (state.kills > 0) {
        --state.kills;
        return fail(GenTL::GC_ERR_ABORT, "The wait was killed.");
    }
    return hasData() ? GenTL::GC_ERR_SUCCESS
                     : fail(GenTL::GC_ERR_TIMEOUT, "No event has come within the timeout.");
}
