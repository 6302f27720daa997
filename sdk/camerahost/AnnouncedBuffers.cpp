#include "sdk/camerahost/AnnouncedBuffers.h"

#include "sdk/camerahost/InfoNumber.h"

#include <algorithm>
#include <cstring>

AnnouncedBuffers::AnnouncedBuffers(
    const DeviceLibrary &library, GenTL::DS_HANDLE stream, const StreamMapping &memory)
    : m_library(library), m_stream(stream), m_memory(memory)
{ }

std::optional<Problem> AnnouncedBuffers::announce(std::uint32_t minimum)
{
    auto problem = m_library.DSAnnounceBuffer
        ? announceOwn()
        : std::optional<Problem>({"DSAnnounceBuffer", GenTL::GC_ERR_NOT_IMPLEMENTED, "does not exist"});
    const bool insistsOnItsMemory = problem
        && (problem->code == GenTL::GC_ERR_INVALID_BUFFER || problem->code == GenTL::GC_ERR_NOT_IMPLEMENTED);
    if (insistsOnItsMemory && m_library.DSAllocAndAnnounceBuffer && revoke())
        problem = announceForeign();
    if (problem && problem->code == GenTL::GC_ERR_OUT_OF_MEMORY && m_size >= minimum)
        return std::nullopt;
    return problem;
}

std::optional<Problem> AnnouncedBuffers::announceOwn()
{
    for (m_size = 0; m_size < m_memory.buffers(); ++m_size) {
        Buffer &buffer = m_buffers[m_size];
        buffer.data = m_memory.buffer(m_size);
        buffer.capacity = m_memory.bufferSize();
        if (auto problem = m_library.call("DSAnnounceBuffer", m_library.DSAnnounceBuffer, m_stream,
                static_cast<void *>(m_memory.buffer(m_size)), m_memory.bufferSize(),
                static_cast<void *>(nullptr), &buffer.handle))
            return problem;
    }
    return std::nullopt;
}

std::optional<Problem> AnnouncedBuffers::announceForeign()
{
    for (m_size = 0; m_size < m_memory.buffers(); ++m_size) {
        Buffer &buffer = m_buffers[m_size];
        if (auto problem = m_library.call("DSAllocAndAnnounceBuffer", m_library.DSAllocAndAnnounceBuffer,
                m_stream, m_memory.bufferSize(), static_cast<void *>(nullptr), &buffer.handle))
            return problem;
        if (auto problem = findForeignMemory(buffer)) {
            ++m_size; // The buffer is announced, although it cannot be used.
            return problem;
        }
    }
    return std::nullopt;
}

std::optional<Problem> AnnouncedBuffers::findForeignMemory(Buffer &buffer) const
{
    const auto ask = [&](GenTL::BUFFER_INFO_CMD command) {
        return readNumber([&](auto *type, void *value, std::size_t *size) {
            return m_library.DSGetBufferInfo
                ? m_library.DSGetBufferInfo(m_stream, buffer.handle, command, type, value, size)
                : GenTL::GC_ERR_NOT_IMPLEMENTED;
        });
    };
    const InfoNumber base = ask(GenTL::BUFFER_INFO_BASE);
    if (!base.isKnown() || base.value == 0)
        return Problem{"DSGetBufferInfo", base.code, "does not tell where the memory of a buffer is"};
    buffer.data = reinterpret_cast<const std::uint8_t *>(base.value);
    const std::uint64_t size = ask(GenTL::BUFFER_INFO_SIZE).valueOr(m_memory.bufferSize());
    buffer.capacity = std::min<std::size_t>(size, m_memory.bufferSize());
    return std::nullopt;
}

bool AnnouncedBuffers::queue(std::uint32_t index)
{
    Buffer &buffer = m_buffers[index];
    buffer.isQueued.store(true, std::memory_order_relaxed); // Before the producer can fill the buffer.
    m_queued.fetch_add(1, std::memory_order_relaxed);
    const GenTL::GC_ERROR code = callQuietly(m_library.DSQueueBuffer, m_stream, buffer.handle);
    if (code == GenTL::GC_ERR_SUCCESS || code == GenTL::GC_ERR_RESOURCE_IN_USE) // The latter: it is queued.
        return true;
    buffer.isQueued.store(false, std::memory_order_relaxed);
    m_queued.fetch_sub(1, std::memory_order_relaxed);
    return false;
}

std::optional<std::uint32_t> AnnouncedBuffers::take(GenTL::BUFFER_HANDLE handle)
{
    const std::uint32_t index = indexOf(handle);
    if (index == m_size || !m_buffers[index].isQueued.exchange(false, std::memory_order_relaxed))
        return std::nullopt;
    m_queued.fetch_sub(1, std::memory_order_relaxed);
    m_lastTaken = index;
    return index;
}

/// Returns the number of the buffer, or m_size if there is none.
std::uint32_t AnnouncedBuffers::indexOf(GenTL::BUFFER_HANDLE handle) const
{
    for (std::uint32_t step = 1; step <= m_size; ++step) {
        const std::uint32_t index = (m_lastTaken + step) % m_size;
        if (m_buffers[index].handle == handle)
            return index;
    }
    return m_size;
}

void AnnouncedBuffers::copyToStream(std::uint32_t index, std::size_t size) const
{
    if (data(index) != m_memory.buffer(index))
        std::memcpy(m_memory.buffer(index), data(index), size);
}

bool AnnouncedBuffers::revoke()
{
    bool isComplete = true;
    for (std::uint32_t index = 0; index < m_size; ++index) {
        const auto code = callQuietly(m_library.DSRevokeBuffer, m_stream, m_buffers[index].handle,
            static_cast<void **>(nullptr), static_cast<void **>(nullptr));
        isComplete = isComplete
            && (code == GenTL::GC_ERR_SUCCESS || code == GenTL::GC_ERR_INVALID_HANDLE); // Already gone.
    }
    if (isComplete)
        m_size = 0;
    return isComplete;
}
