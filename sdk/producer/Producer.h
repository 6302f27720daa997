#pragma once

#include "sdk/producer/InfoOutput.h"
#include "sdk/producer/Modules.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <optional>

/// The state of the loaded producer: whether it is initialised, and which modules are open under which
/// handles. A handle is a number that is never reused, so a closed or foreign handle is always recognised.
/// Any thread may call any function. None of them waits for a search.
///
/// Every function that returns a code returns GC_ERR_NOT_INITIALIZED before initialise() and after close(),
/// and GC_ERR_INVALID_PARAMETER if a required output is null.
class Producer
{
public:
    static Producer &instance();

    /// Creates the device source. Returns GC_ERR_RESOURCE_IN_USE if that was done already. Throws what
    /// createDeviceSource() throws, and then stays uninitialised.
    GenTL::GC_ERROR initialise();

    /// Closes all modules and the device source.
    GenTL::GC_ERROR close();

    GenTL::GC_ERROR requireInitialised() const;

    /// Writes what the producer reports about itself; see writeProducerInfo() for more codes.
    GenTL::GC_ERROR info(GenTL::TL_INFO_CMD command, const InfoOutput &output) const;

    /// Returns GC_ERR_RESOURCE_IN_USE if the system module is open.
    GenTL::GC_ERROR openSystem(GenTL::TL_HANDLE *handle);

    /// Closes the system module and all interfaces. Returns GC_ERR_INVALID_HANDLE for any other handle.
    GenTL::GC_ERROR closeSystem(GenTL::TL_HANDLE handle);

    /// Opens an interface with the record from the system's list; nothing stands for an ID that is not in
    /// that list. Returns GC_ERR_RESOURCE_IN_USE if the interface is open, even if it is no longer in the
    /// list, and GC_ERR_INVALID_ID if there is no record.
    GenTL::GC_ERROR openInterface(
        const std::string &id, const std::optional<InterfaceRecord> &record, GenTL::IF_HANDLE *handle);

    /// Returns GC_ERR_INVALID_HANDLE for a handle that is not open.
    GenTL::GC_ERROR closeInterface(GenTL::IF_HANDLE handle);

    /// Return null while the system module is not open.
    std::shared_ptr<SystemModule> openedSystem() const;
    GenTL::TL_HANDLE systemHandle() const;

    /// Return null for a handle that is not open. The module outlives its closing while the caller holds it.
    std::shared_ptr<SystemModule> system(GenTL::TL_HANDLE handle) const;
    std::shared_ptr<InterfaceModule> interface(GenTL::IF_HANDLE handle) const;

private:
    Producer() = default;
    bool isOpen(const std::string &interfaceId) const;
    void *newHandle();
    void closeModules();

    mutable std::mutex m_mutex; // Guards what follows.
    std::uintptr_t m_lastHandle = 0;
    std::filesystem::path m_file; // The .cti file itself.
    std::shared_ptr<DeviceSource> m_source; // Null while the producer is not initialised.
    GenTL::TL_HANDLE m_systemHandle = GenTL::GENTL_INVALID_HANDLE;
    std::shared_ptr<SystemModule> m_system;
    std::map<GenTL::IF_HANDLE, std::shared_ptr<InterfaceModule>> m_interfaces;
};
