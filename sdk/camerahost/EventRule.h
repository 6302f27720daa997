#pragma once

#include "sdk/gentl/GenTLDevice.h"

#include <cstddef>

/// What the fetch thread does after EventGetData has returned.
enum class EventAction
{
    TakeBuffer,
    Continue,
    Pause, ///< Wait a moment, so that a producer that always fails does not occupy the processor.
    PauseAndCheck, ///< The same; the camera may be lost.
    RegisterAgain, ///< The event is stuck: unregister it and register it again.
    Leave ///< The stream is broken.
};

/// Decides what follows from the result of EventGetData.
class EventRule
{
public:
    /// @param code What EventGetData has returned.
    /// @param size Bytes of the event's data.
    EventAction next(GenTL::GC_ERROR code, std::size_t size);

private:
    int m_aborts = 0; // Number of these results in a row.
    int m_failures = 0;
};
