#include "tests/device/host/ScriptedStream.h"

#include <cstring>
#include <sys/mman.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

void *map(int descriptor, std::size_t size)
{
    void *const data = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, descriptor, 0);
    close(descriptor);
    return data == MAP_FAILED ? nullptr : data;
}

} // namespace

std::vector<ChunkFeature> ScriptedStream::chunkFeatures()
{
    ChunkFeature feature;
    feature.name = "ChunkCounter";
    feature.chunkId = chunkId;
    feature.length = sizeof(std::uint64_t);
    return {feature};
}

ScriptedStream::~ScriptedStream()
{
    stop();
}

bool ScriptedStream::start(const StartStreamRequest &request, const std::vector<int> &descriptors)
{
    if (descriptors.size() != 2)
        return false;
    m_pixelSize = request.buffers * request.bufferSize;
    m_pixels = static_cast<std::uint8_t *>(map(descriptors[0], m_pixelSize));
    m_ring = static_cast<StreamRing *>(map(descriptors[1], sizeof(StreamRing)));
    for (std::uint32_t buffer = 0; buffer < request.buffers; ++buffer)
        m_free.insert(buffer);
    return m_pixels && m_ring;
}

void ScriptedStream::stop()
{
    if (!m_ring)
        return;
    munmap(m_pixels, m_pixelSize);
    munmap(m_ring, sizeof(StreamRing));
    m_ring = nullptr;
    m_free.clear();
    m_frameId = 0;
}

std::uint32_t ScriptedStream::takeFree()
{
    for (;;) {
        StreamRing::BufferSet released{};
        m_ring->takeReleased(released);
        for (std::uint32_t buffer = 0; buffer < StreamRing::maxBuffers; ++buffer) {
            if (released[buffer / 64] >> buffer % 64 & 1U)
                m_free.insert(buffer);
        }
        if (!m_free.empty())
            return *m_free.begin();
        m_ring->waitForRelease(10s);
    }
}

ImageRecord &ScriptedStream::fill(std::uint32_t buffer)
{
    constexpr std::uint64_t chunkOffset = 1024;
    ++m_frameId;
    std::uint8_t *const data = m_pixels + buffer * bufferSize;
    std::memset(data, static_cast<int>(m_frameId), imageSize);
    std::memcpy(data + chunkOffset, &m_frameId, sizeof m_frameId);
    ImageRecord &record = m_ring->record(buffer);
    record = {};
    record.imageSize = imageSize;
    record.width = record.height = 8;
    record.pixelFormat = 0x01080001;
    record.frameId = m_frameId;
    record.isComplete = 1;
    record.chunkCount = 1;
    record.chunks[0] = {chunkId, chunkOffset, sizeof m_frameId};
    ++m_ring->counters.delivered;
    m_ring->counters.bytes += imageSize;
    return record;
}

void ScriptedStream::deliver(unsigned count)
{
    for (unsigned i = 0; i < count; ++i)
        deliverChanged([](ImageRecord &) {});
}

void ScriptedStream::deliverChanged(const Change &change)
{
    const std::uint32_t buffer = takeFree();
    m_free.erase(buffer);
    change(fill(buffer));
    m_ring->push(buffer);
}

void ScriptedStream::damageCounter()
{
    // The counter is the first member after the public ones.
    const auto position = (sizeof(StreamRing::Counters) + 63) / 64 * 64;
    std::memset(reinterpret_cast<std::uint8_t *>(m_ring) + position, 0x55, sizeof(std::uint64_t));
}
