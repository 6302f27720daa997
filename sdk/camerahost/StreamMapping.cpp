#include "sdk/camerahost/StreamMapping.h"

#include <limits>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Maps the first `size` bytes of a file. Returns null if the file is shorter or cannot be mapped.
void *mapFile(int descriptor, std::size_t size)
{
    struct stat status
    { };
    if (fstat(descriptor, &status) != 0 || static_cast<std::size_t>(status.st_size) < size)
        return nullptr;
    void *const memory = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, descriptor, 0);
    return memory == MAP_FAILED ? nullptr : memory;
}

} // namespace

std::unique_ptr<StreamMapping> StreamMapping::map(
    const std::vector<int> &descriptors, std::uint32_t buffers, std::size_t bufferSize)
{
    const bool isValid = descriptors.size() == 2 && buffers > 0 && buffers <= StreamRing::maxBuffers
        && bufferSize > 0 && bufferSize <= std::numeric_limits<std::size_t>::max() / buffers;
    std::unique_ptr<StreamMapping> memory(isValid ? new StreamMapping(buffers, bufferSize) : nullptr);
    if (memory) {
        memory->m_pixels = static_cast<std::uint8_t *>(mapFile(descriptors[0], buffers * bufferSize));
        memory->m_ring = static_cast<StreamRing *>(mapFile(descriptors[1], sizeof(StreamRing)));
    }
    for (const int descriptor : descriptors)
        close(descriptor);
    return memory && memory->m_pixels && memory->m_ring ? std::move(memory) : nullptr;
}

StreamMapping::~StreamMapping()
{
    if (m_pixels)
        munmap(m_pixels, m_buffers * m_bufferSize);
    if (m_ring)
        munmap(m_ring, sizeof(StreamRing));
}
