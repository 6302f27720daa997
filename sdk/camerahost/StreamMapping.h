#pragma once

#include "sdk/protocol/StreamRing.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

/// The memory of one stream, which the library has created: the buffers and the StreamRing.
class StreamMapping
{
public:
    /// Maps the memory and closes the descriptors: the buffers' first, then the ring's. Returns null if they
    /// are not what the request has announced or cannot be mapped.
    static std::unique_ptr<StreamMapping> map(
        const std::vector<int> &descriptors, std::uint32_t buffers, std::size_t bufferSize);

    ~StreamMapping();
    StreamMapping(const StreamMapping &) = delete;
    StreamMapping &operator=(const StreamMapping &) = delete;

    std::uint8_t *buffer(std::uint32_t index) const { return m_pixels + index * m_bufferSize; }
    std::uint32_t buffers() const { return m_buffers; }
    std::size_t bufferSize() const { return m_bufferSize; }
    StreamRing &ring() const { return *m_ring; }

private:
    StreamMapping(std::uint32_t buffers, std::size_t bufferSize)
        : m_buffers(buffers), m_bufferSize(bufferSize)
    { }

    std::uint32_t m_buffers;
    std::size_t m_bufferSize;
    std::uint8_t *m_pixels = nullptr;
    StreamRing *m_ring = nullptr;
};
