#include "sdk/producer/Producer.h"

#include "sdk/producer/InfoCommands.h"
#include "sdk/producer/LastError.h"
#include "sdk/producer/SystemModule.h"

#include <cstddef>
#include <dlfcn.h>
#include <new>
#include <utility>

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
    std::shared_ptr<DeviceSource> source;
    {
        const std::lock_guard lock(m_mutex);
        if (!m_source)
            return failNotInitialised();
        source = std::move(m_source);
        std::filesystem::path().swap(m_file); // An assignment would keep memory, which unloading would leak.
    }
    m_handles.closeAll();
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
    std::shared_ptr<DeviceSource> source;
    std::filesystem::path file;
    {
        const std::lock_guard lock(m_mutex);
        if (!m_source)
            return failNotInitialised();
        source = m_source;
        file = m_file;
    }
    return m_handles.open(
        nullptr, "The system", handle, [&] { return std::make_shared<SystemModule>(source, file); });
}

GC_ERROR Producer::failHandle(const char *expected) const
{
    if (const GC_ERROR error = requireInitialised())
        return error;
    return fail(GC_ERR_INVALID_HANDLE, std::string("This is not the handle of ") + expected + ".");
}
