#pragma once

#include "sdk/gentl/GenTLDevice.h"

#include <memory>

class Event;
class Port;

/// What a handle identifies: a module of the producer, the port of a camera, or an event.
class Module
{
public:
    static constexpr const char *handleName = "anything that is open";

    virtual ~Module() = default;

    /// Ends what the module does. Called once, after its handle has become invalid and everything below it
    /// was closed. Other threads may still be in functions of the module.
    virtual void close() { }

    /// Returns the registers of the module, or null if it has none.
    virtual Port *port() { return nullptr; }

    /// Returns a new event, or null if the module never fires events of this type.
    virtual std::shared_ptr<Event> createEvent(GenTL::EVENT_TYPE) { return nullptr; }

protected:
    Module() = default;
    Module(const Module &) = delete;
    Module &operator=(const Module &) = delete;
};
