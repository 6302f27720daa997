#include "sdk/producer/Producer.h"

#include "sdk/producer/LastError.h"

#include <algorithm>
#include <cstddef>
#include <dlfcn.h>
#include <new>
#include <stdexcept>
#include <system_error>
#include <utility>

using namespace GenTL;

namespace {

constexpr std::uint32_t genTlMajor = 1;
constexpr std::uint32_t genTlMinor = 5;

std::filesystem::path ownFile()
{
    // A variable of our own rather than an exported function: another producer may have been loaded before
    // us into the global scope, and its function of the same name would then be the one found.
    static const char landmark = 0;
    Dl_info library{};
    if (!dladdr(&landmark, &library) || !library.dli_fname)
        throw std::runtime_error("The producer cannot find its own file.");
    std::error_code error;
    const std::filesystem::path resolved = std::filesystem::canonical(library.dli_fname, error);
    return error ? std::filesystem::absolute(library.dli_fname) : resolved;
}

GC_ERROR answerSystemInfo(const ProducerIdentity &identity, const std::filesystem::path &file,
    TL_INFO_CMD command, const Answer &answer)
{
    switch (command) {
    case TL_INFO_ID:
        return answer.text(identity.id);
    case TL_INFO_VENDOR:
        return answer.text(identity.vendor);
    case TL_INFO_MODEL:
        return answer.text(identity.model);
    case TL_INFO_VERSION:
        return answer.text(identity.version);
    case TL_INFO_TLTYPE:
        return answer.text(identity.tlType);
    case TL_INFO_NAME:
        return answer.text(file.filename().string());
    case TL_INFO_PATHNAME:
        return answer.text(file.string());
    case TL_INFO_DISPLAYNAME:
        return answer.text(identity.displayName);
    case TL_INFO_CHAR_ENCODING:
        return answer.int32(TL_CHAR_ENCODING_UTF8);
    case TL_INFO_GENTL_VER_MAJOR:
        return answer.uint32(genTlMajor);
    case TL_INFO_GENTL_VER_MINOR:
        return answer.uint32(genTlMinor);
    default:
        return failUnknownCommand(command);
    }
}

GC_ERROR failNotInitialised()
{
    return fail(GC_ERR_NOT_INITIALIZED, "The producer is not initialised.");
}

} // namespace

Producer &Producer::instance()
{
    // Never destroyed: a consumer may leave the process while a thread of its own is still in a call.
    // Once closed it owns no memory, so unloading loses none.
    alignas(Producer) static std::byte storage[sizeof(Producer)];
    static Producer *const producer = new (storage) Producer;
    return *producer;
}

GC_ERROR Producer::initialise()
{
    const std::lock_guard lock(m_mutex);
    if (m_session)
        return fail(GC_ERR_RESOURCE_IN_USE, "The producer is initialised already.");
    const std::filesystem::path file = ownFile();
    m_session = Session{file, createDeviceSource(file)};
    return GC_ERR_SUCCESS;
}

GC_ERROR Producer::close()
{
    const std::lock_guard lock(m_mutex);
    if (!m_session)
        return failNotInitialised();
    closeEverything();
    m_session.reset();
    return GC_ERR_SUCCESS;
}

GC_ERROR Producer::requireInitialised() const
{
    const std::lock_guard lock(m_mutex);
    return m_session ? GC_ERR_SUCCESS : failNotInitialised();
}

GC_ERROR Producer::info(TL_INFO_CMD command, const Answer &answer) const
{
    const std::lock_guard lock(m_mutex);
    if (!m_session)
        return failNotInitialised();
    if (!answer.isComplete())
        return failArgumentMissing();
    return answerSystemInfo(m_session->source->identity(), m_session->file, command, answer);
}

GC_ERROR Producer::openSystem(TL_HANDLE *handle)
{
    if (!handle)
        return failArgumentMissing();
    const std::lock_guard lock(m_mutex);
    if (m_system)
        return fail(GC_ERR_RESOURCE_IN_USE, "The system module is open already.");
    m_system = std::make_shared<SystemModule>(m_session->source);
    m_systemHandle = newHandle();
    *handle = m_systemHandle;
    return GC_ERR_SUCCESS;
}

GC_ERROR Producer::closeSystem(TL_HANDLE handle)
{
    const std::lock_guard lock(m_mutex);
    if (!m_system || handle != m_systemHandle)
        return fail(GC_ERR_INVALID_HANDLE, "This is no open system module.");
    closeEverything();
    return GC_ERR_SUCCESS;
}

GC_ERROR Producer::openInterface(const SystemModule &systemModule, const std::string &id, IF_HANDLE *handle)
{
    if (!handle)
        return failArgumentMissing();
    // Asked before our own lock is taken: the system module may be in the middle of a search.
    const std::optional<InterfaceRecord> record = systemModule.findInterface(id);

    const std::lock_guard lock(m_mutex);
    if (isOpen(id))
        return fail(GC_ERR_RESOURCE_IN_USE, "The interface \"" + id + "\" is open already.");
    if (!record)
        return failUnknownId(id);
    const IF_HANDLE opened = newHandle();
    m_interfaces.emplace(opened, std::make_shared<InterfaceModule>(m_session->source, *record));
    *handle = opened;
    return GC_ERR_SUCCESS;
}

GC_ERROR Producer::closeInterface(IF_HANDLE handle)
{
    const std::lock_guard lock(m_mutex);
    if (m_interfaces.erase(handle) == 0)
        return fail(GC_ERR_INVALID_HANDLE, "This is no open interface.");
    return GC_ERR_SUCCESS;
}

TL_HANDLE Producer::systemHandle() const
{
    const std::lock_guard lock(m_mutex);
    return m_systemHandle;
}

std::shared_ptr<SystemModule> Producer::system() const
{
    const std::lock_guard lock(m_mutex);
    return m_system;
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
        [&](const auto &entry) { return entry.second->record().id == interfaceId; });
}

void *Producer::newHandle()
{
    // NOLINTNEXTLINE(performance-no-int-to-ptr): never dereferenced, the type only has to be a handle's.
    return reinterpret_cast<void *>(++m_lastHandle);
}

void Producer::closeEverything()
{
    m_interfaces.clear();
    m_system.reset();
    m_systemHandle = GENTL_INVALID_HANDLE;
}
