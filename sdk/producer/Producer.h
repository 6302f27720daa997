#pragma once

#include "sdk/producer/DeviceSource.h"
#include "sdk/producer/HandleTable.h"
#include "sdk/producer/InfoOutput.h"

#include <filesystem>
#include <memory>
#include <mutex>

/// The state of the loaded producer: whether the producer is initialised, and what is open. Any thread may
/// call any function. No function waits for a search.
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

    /// Returns the handles, of which none is open before initialise() and after close().
    HandleTable &handles() { return m_handles; }

    /// Returns GC_ERR_INVALID_HANDLE; the text says that a handle is not the one of `expected`.
    GenTL::GC_ERROR failHandle(const char *expected) const;

private:
    Producer() = default;

    HandleTable m_handles;
    mutable std::mutex m_mutex; // Guards the members below.
    std::filesystem::path m_file; // The path of the .cti file.
    std::shared_ptr<DeviceSource> m_source; // Null while the producer is not initialised.
};
