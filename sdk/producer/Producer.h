#pragma once

#include "sdk/producer/InfoOutput.h"
#include "sdk/producer/Modules.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <optional>

/// The state of the loaded producer: whether the producer is initialised, and which modules are open with
/// which handles. The number of a handle is never reused, so a closed or foreign handle is always detected.
/// Any thread may call any function. No function waits for a search.
///
/// Every function that returns a code returns GC_ERR_NOT_INITIALIZED before initialise() and after close(),
/// and GC_ERR_INVALID_PARAMETER if a required output is null.
class Producer
{
public:
    static Producer &instance();

    /// Creates the device source. Returns GC_ERR_RESOURCE_IN_USE if the producer is already initialised. If
    /// createDeviceSource() throws, the producer stays uninitialised and the exception reaches the caller.
    GenTL::GC_ERROR initialise();

    /// Closes all modules and releases the device source.
    GenTL::GC_ERROR close();

    GenTL::GC_ERROR requireInitialised() const;

    /// Writes the value of an info command of the producer. Returns the codes of writeProducerInfo() too.
    GenTL::GC_ERROR info(GenTL::TL_INFO_CMD command, const InfoOutput &output) const;

    /// Returns what ListChangedFunction returns, or -1 if the producer is not initialised.
    int listChangedDescriptor() const;

    /// Opens the system module. Returns GC_ERR_RESOURCE_IN_USE if the system module is already open.
    GenTL::GC_ERROR openSystem(GenTL::TL_HANDLE *handle);

    /// Closes the system module and all interfaces. Returns GC_ERR_INVALID_HANDLE if the handle is not the
    /// one of the open system module.
    GenTL::GC_ERROR closeSystem(GenTL::TL_HANDLE handle);

    /// Opens an interface. `record` is the interface's entry in the system's list, or empty if the list does
    /// not contain the ID. Returns GC_ERR_RESOURCE_IN_USE if the interface is already open, even if the list
    /// no longer contains it. Otherwise, returns GC_ERR_INVALID_ID if `record` is empty.
    GenTL::GC_ERROR openInterface(
        const std::string &id, const std::optional<InterfaceRecord> &record, GenTL::IF_HANDLE *handle);

    /// Closes an interface. Returns GC_ERR_INVALID_HANDLE if the handle is not the one of an open interface.
    GenTL::GC_ERROR closeInterface(GenTL::IF_HANDLE handle);

    /// Returns the open system module, or null if it is not open.
    std::shared_ptr<SystemModule> openedSystem() const;

    /// Returns the handle of the open system module, or GENTL_INVALID_HANDLE if it is not open.
    GenTL::TL_HANDLE systemHandle() const;

    // Both functions return null if the handle does not identify an open module. A closed module exists as
    // long as the caller holds the returned pointer.
    std::shared_ptr<SystemModule> system(GenTL::TL_HANDLE handle) const;
    std::shared_ptr<InterfaceModule> interface(GenTL::IF_HANDLE handle) const;

private:
    Producer() = default;
    bool isOpen(const std::string &interfaceId) const;
    void *newHandle();
    void closeModules();

    mutable std::mutex m_mutex; // Guards the members below.
    std::uintptr_t m_lastHandle = 0;
    std::filesystem::path m_file; // The path of the .cti file.
    std::shared_ptr<DeviceSource> m_source; // Null while the producer is not initialised.
    GenTL::TL_HANDLE m_systemHandle = GenTL::GENTL_INVALID_HANDLE;
    std::shared_ptr<SystemModule> m_system;
    std::map<GenTL::IF_HANDLE, std::shared_ptr<InterfaceModule>> m_interfaces;
};
