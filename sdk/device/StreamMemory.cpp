#include "sdk/device/StreamMemory.h"

#include "sdk/process/Descriptor.h"

#include <algorithm>
#include <fcntl.h>
#include <new>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>

namespace {

std::uint64_t physicalMemory()
{
    return static_cast<std::uint64_t>(sysconf(_SC_PHYS_PAGES))
        * static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
}

bool isInside(std::uint64_t offset, std::uint64_t length, std::uint64_t size)
{
    return offset <= size && length <= size - offset;
}

} // namespace

bool StreamMemory::Mapping::create(const char *name, std::size_t bytes, int protection)
{
    descriptor = aboveStandard(memfd_create(name, MFD_CLOEXEC | MFD_ALLOW_SEALING));
    // The pages are allocated when the host writes to them, so exhausted memory ends the host and not the
    // program.
    if (descriptor < 0 || ftruncate(descriptor, static_cast<off_t>(bytes)) != 0)
        return false;
    // If the host could shrink the file, reading the mapping would end the program.
    if (fcntl(descriptor, F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_SEAL) != 0)
        return false;
    void *const mapped = mmap(nullptr, bytes, protection, MAP_SHARED, descriptor, 0);
    if (mapped == MAP_FAILED)
        return false;
    data = static_cast<std::uint8_t *>(mapped);
    size = bytes;
    return true;
}

void StreamMemory::Mapping::closeDescriptor()
{
    if (descriptor >= 0)
        close(std::exchange(descriptor, -1));
}

void StreamMemory::Mapping::destroy()
{
    closeDescriptor();
    if (data)
        munmap(data, size);
}

std::shared_ptr<StreamMemory> StreamMemory::create(std::uint32_t buffers, std::uint64_t bufferSize)
{
    if (buffers == 0 || buffers > StreamRing::maxBuffers || bufferSize == 0
        || bufferSize > physicalMemory() / buffers)
        return nullptr;
    auto memory = std::make_shared<StreamMemory>(buffers, bufferSize);
    if (!memory->m_pixels.create("CvxCPP pixels", buffers * bufferSize, PROT_READ)
        || !memory->m_ringBytes.create("CvxCPP ring", sizeof(StreamRing), PROT_READ | PROT_WRITE))
        return nullptr;
    memory->m_ring = new (memory->m_ringBytes.data) StreamRing;
    return memory;
}

StreamMemory::StreamMemory(std::uint32_t buffers, std::uint64_t bufferSize)
    : m_buffers(buffers), m_bufferSize(bufferSize), m_isHeld(buffers)
{ }

StreamMemory::~StreamMemory()
{
    m_pixels.destroy();
    m_ringBytes.destroy();
}

void StreamMemory::closeDescriptors()
{
    m_pixels.closeDescriptor();
    m_ringBytes.closeDescriptor();
}

bool StreamMemory::claim(std::uint32_t buffer)
{
    return buffer < m_buffers && !m_isHeld[buffer].exchange(true, std::memory_order_acq_rel);
}

void StreamMemory::release(std::uint32_t buffer)
{
    // In this order, because the host may hand over the buffer again at once.
    m_isHeld[buffer].store(false, std::memory_order_release);
    m_ring->release(buffer);
}

std::optional<ImageRecord> StreamMemory::record(std::uint32_t buffer) const
{
    const ImageRecord record = m_ring->record(buffer);
    constexpr std::uint32_t maxLength = 1U << 24U; // No camera has a larger width or height.
    if (!isInside(record.imageOffset, record.imageSize, m_bufferSize) || record.width > maxLength
        || record.height > maxLength || record.chunkCount > ImageRecord::maxChunks)
        return std::nullopt;
    const auto isChunkInside
        = [&](const ChunkPosition &chunk) { return isInside(chunk.offset, chunk.length, m_bufferSize); };
    if (!std::all_of(record.chunks.begin(), record.chunks.begin() + record.chunkCount, isChunkInside))
        return std::nullopt;
    return record;
}
