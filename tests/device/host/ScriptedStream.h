#pragma once

#include "sdk/protocol/DeviceMessages.h"
#include "sdk/protocol/StreamRing.h"

#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <vector>

/// The stream of the scripted host: hands over images, and damages the shared memory on command.
class ScriptedStream
{
public:
    static constexpr std::uint64_t bufferSize = 4096;
    static constexpr std::uint64_t imageSize = 64;
    static constexpr std::uint64_t chunkId = 7;
    static std::vector<ChunkFeature> chunkFeatures();

    ~ScriptedStream();
    bool isStarted() const { return m_ring; }

    /// Maps the descriptors of a StartStreamRequest and closes them.
    bool start(const StartStreamRequest &request, const std::vector<int> &descriptors);
    void stop();

    /// Hands over this number of images. Image n consists of bytes n and has the frame ID n and the chunk
    /// value n. Waits for free buffers.
    void deliver(unsigned count);

    using Change = std::function<void(ImageRecord &record)>;
    /// Hands over one image whose record was changed.
    void deliverChanged(const Change &change);

    /// Pushes a number, whether there is such a buffer or not.
    void push(std::uint32_t buffer) { m_ring->push(buffer); }
    /// Makes the counter of pushed buffers senseless.
    void damageCounter();

private:
    std::uint32_t takeFree();
    ImageRecord &fill(std::uint32_t buffer);

    std::uint8_t *m_pixels = nullptr;
    StreamRing *m_ring = nullptr;
    std::uint64_t m_pixelSize = 0;
    std::set<std::uint32_t> m_free;
    std::uint64_t m_frameId = 0;
};
