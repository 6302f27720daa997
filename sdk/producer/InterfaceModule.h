#pragma once

#include "sdk/producer/SystemModule.h"

#include <chrono>

/// An open interface module, which an IF_HANDLE identifies. Each interface has its own list with its own
/// lock, so several interfaces can be searched at the same time.
class InterfaceModule final : public Module
{
public:
    static constexpr const char *handleName = "an open interface";

    /// @param record The interface's entry in the system's list.
    InterfaceModule(std::shared_ptr<SystemModule> parent, InterfaceRecord record);

    /// Searches for devices; see UpdatedList::update().
    GenTL::GC_ERROR updateDevices(GenTL::bool8_t *changed, std::chrono::milliseconds timeout);

    /// Returns the interface's current entry in the system's list. If the list no longer contains the
    /// interface, returns the entry with which the interface was opened.
    InterfaceRecord record() const;

    Port *port() override { return &m_port; }

    const std::shared_ptr<SystemModule> system;
    UpdatedList<DeviceRecord> devices;

private:
    std::vector<ModuleFeature> features();

    const InterfaceRecord m_openedAs;
    std::atomic<std::uint64_t> m_selected{0}; // The index of a device; may be past the end of the list.
    ModulePort m_port;
};
