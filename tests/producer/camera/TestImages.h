#pragma once

#include "sdk/producer/OpenCamera.h"

#include <map>
#include <mutex>

/// Fills buffers when a test writes to a register.
class TestImages final : public ImageSource
{
public:
    TestImages();

    /// Reads or writes the register at an address. Returns false if there is no such register.
    bool read(std::uint64_t address, std::uint64_t &value) const;
    bool write(std::uint64_t address, std::uint64_t value);

    std::size_t payloadSize() const override;
    std::size_t minBuffers() const override;
    std::optional<std::size_t> maxChunks() const override;
    void start(BufferQueue &queue) override;
    void stop(bool isImmediate) override;
    void bufferQueued() override;
    std::uint64_t startedImages() const override;
    std::uint64_t lostImages() const override;

private:
    std::uint64_t setting(std::uint64_t address) const;
    FilledImage nextImage();
    void deliver();
    void take();
    void giveBack();

    mutable std::mutex m_mutex; // Guards the members below.
    std::map<std::uint64_t, std::uint64_t> m_settings; // By address.
    BufferQueue *m_queue = nullptr; // Null while the source is stopped.
    std::optional<BufferQueue::Buffer> m_kept;
    std::uint64_t m_frames = 0;
    std::uint64_t m_notices = 0;
};
