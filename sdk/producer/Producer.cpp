#include "sdk/producer/Producer.h"

#include "sdk/producer/InfoCommands.h"
#include "sdk/producer/LastError.h"

#include <algorithm>
#include <cstddef>
#include <dlfcn.h>
#include <new>

using namespace GenTL;

namespace {

std::filesystem::path ownFile()
{
    // Uses the address of a static variable. The name of an exported function could resolve to another
    // producer that was loaded into the global scope before this one.
    static const char landmark = 0;
    Dl_info library{};
    dladdr(&landmark, &library); // dladdr() cannot fail for an address in a loaded library.
    return std::filesystem::canonical(library.dli_fname);
}

GC_ERROR failNotInitialised()
{
    return fail(GC_ERR_NOT_INITIALIZED, "The producer is not initialised.");
}

} // namespace

Producer &Producer::instance()
{
    // The object is never destroyed, because the process may end while another thread is still in a call.
    // A closed producer owns no memory, so unloading the library leaks none.
    alignas(Producer) static std::byte storage[sizeof(Producer)];
    static Producer *const producer = new (storage) Producer;
    return *producer;
}

GC_ERROR Producer::initialise()
{
    const std::lock_guard lock(m_mutex);
    if (m_source)
        return fail(GC_ERR_RESOURCE_IN_USE, "The producer is initialised already.");
    m_file = ownFile();
    m_source = createDeviceSource(m_file);
    return GC_ERR_SUCCESS;
}

GC_ERROR Producer::close()
{
    const std::lock_guard lock(m_mutex);
    if (!m_source)
        return failNotInitialised();
    closeModules();
    m_source.reset();
    std::filesystem::path().swap(m_file); // An assignment would keep the memory, which unloading would leak.
    return GC_ERR_SUCCESS;
}

GC_ERROR Producer::requireInitialised() const
{
    const std::lock_guard lock(m_mutex);
    return m_source ? GC_ERR_SUCCESS : failNotInitialised();
}

GC_ERROR Producer::info(TL_INFO_CMD command, const InfoOutput &output) const
{
    const std::lock_guard lock(m_mutex);
    if (!m_source)
        return failNotInitialised();
    if (!output.isComplete())
        return failMissingArgument();
    return writeProducerInfo(m_source->identity(), m_file, command, output);
}

int Producer::listChangedDescriptor() const
{
    const std::lock_guard lock(m_mutex);
    return m_source ? m_source->listChangedDescriptor() : -1;
}

GC_ERROR Producer::openSystem(TL_HANDLE *handle)
{
    const std::lock_guard lock(m_mutex);
    if (!m_source)
        return failNotInitialised();
    if (!handle)
        return failMissingArgument();
    if (m_system)
        return fail(GC_ERR_RESOURCE_IN_USE, "The system module is open already.");
    m_system = std::make_shared<SystemModule>(m_source);
    m_systemHandle = newHandle();
    *handle = m_systemHandle;
    return GC_ERR_SUCCESS;
}

GC_ERROR Producer::closeSystem(TL_HANDLE handle)
{
    const std::lock_guard lock(m_mutex);
    if (!m_source)
        return failNotInitialised();
    if (!m_system || handle != m_systemHandle)
        return fail(GC_ERR_INVALID_HANDLE, "This is not the handle of the open system module.");
    closeModules();
    return GC_ERR_SUCCESS;
}

GC_ERROR Producer::openInterface(
    const std::string &id, const std::optional<InterfaceRecord> &record, IF_HANDLE *handle)
{
    const std::lock_guard lock(m_mutex);
    if (!m_source)
        return failNotInitialised();
    if (!handle)
        return failMissingArgument();
    if (isOpen(id))
        return fail(GC_ERR_RESOURCE_IN_USE, "The interface \"" + id + "\" is open already.");
    if (!record)
        return failUnknownId(id);
    const IF_HANDLE opened = newHandle();
    m_interfaces.emplace(opened, std::make_shared<InterfaceModule>(m_source, *record));
    *handle = opened;
    return GC_ERR_SUCCESS;
}

GC_ERROR Producer::closeInterface(IF_HANDLE handle)
{
    const std::lock_guard lock(m_mutex);
    if (!m_source)
        return failNotInitialised();
    if (m_interfaces.erase(handle) == 0)
        return fail(GC_ERR_INVALID_HANDLE, "This is not the handle of an open interface.");
    return GC_ERR_SUCCESS;
}

std::shared_ptr<SystemModule> Producer::openedSystem() const
{
    const std::lock_guard lock(m_mutex);
    return m_system;
}

TL_HANDLE Producer::systemHandle() const
{
    const std::lock_guard lock(m_mutex);
    return m_systemHandle;
}

std::shared_ptr<SystemModule> Producer::system(TL_HANDLE handle) const
{
    const std::lock_guard lock(m_mutex);
    return handle == m_systemHandle ? m_system : nullptr;
}

std::shared_ptr<InterfaceModule> Producer::interface(IF_HANDLE handle) const
{
    const std::lock_guard lock(m_mutex);
    const auto entry = m_interfaces.find(handle);
    return entry != m_interfaces.end() ? entry->second : nullptr;
}

bool Producer::isOpen(const std::string &interfaceId) const
{
    return std::any_of(m_interfaces.begin(), m_interfaces.end(),
        [&](const auto &entry) { return entry.second->openedAs.id == interfaceId; });
}

void *Producer::newHandle()
{
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the handle is never dereferenced.
    return reinterpret_cast<void *>(++m_lastHandle);
}

void Producer::closeModules()
{
    m_interfaces.clear();
    m_system.reset();
    m_systemHandle = GENTL_INVALID_HANDLE;
}
