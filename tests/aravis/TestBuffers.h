#pragma once

#include "sdk/producer/OpenCamera.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <gtest/gtest.h>
#include <list>
#include <mutex>
#include <optional>
#include <set>
#include <vector>

/// The buffers of a stream. Fails the test if the source misuses a buffer.
class TestBuffers final : public BufferQueue
{
public:
    struct Delivered
    {
        Buffer buffer;
        FilledImage image;
    };

    TestBuffers(std::size_t count, std::size_t size)
    {
        for (std::size_t index = 0; index < count; ++index) {
            auto &memory = m_memory.emplace_back(size);
            m_input.push_back({&memory, memory.data(), size});
        }
    }

    std::optional<Buffer> take() override
    {
        const std::lock_guard lock(m_mutex);
        if (m_input.empty())
            return std::nullopt;
        const Buffer buffer = m_input.front();
        m_input.pop_front();
        m_taken.insert(buffer.handle);
        return buffer;
    }

    void deliver(const Buffer &buffer, const FilledImage &image) override
    {
        const std::lock_guard lock(m_mutex);
        EXPECT_EQ(m_taken.erase(buffer.handle), 1U);
        if (m_flushed.erase(buffer.handle) == 1U)
            return m_input.push_back(buffer);
        m_output.push_back({buffer, image});
        m_isDelivered.notify_all();
    }

    void giveBack(const Buffer &buffer) override
    {
        const std::lock_guard lock(m_mutex);
        EXPECT_EQ(m_taken.erase(buffer.handle), 1U);
        m_input.push_back(buffer);
    }

    void countUnderrun(std::uint64_t images) override
    {
        const std::lock_guard lock(m_mutex);
        m_underruns += images;
    }

    /// Returns the next image. Waits for it, but not longer than half a minute.
    std::optional<Delivered> await()
    {
        std::unique_lock lock(m_mutex);
        if (!m_isDelivered.wait_for(lock, std::chrono::seconds(30), [this] { return !m_output.empty(); }))
            return std::nullopt;
        const Delivered delivered = m_output.front();
        m_output.pop_front();
        return delivered;
    }

    void queue(ImageSource &source, const Buffer &buffer)
    {
        {
            const std::lock_guard lock(m_mutex);
            m_input.push_back(buffer);
        }
        source.bufferQueued();
    }

    /// Sends the buffers that the source has back to the input as soon as they are filled.
    void flushTaken()
    {
        const std::lock_guard lock(m_mutex);
        m_flushed = m_taken;
    }

    /// Returns the number of buffers that the source has.
    std::size_t taken() const
    {
        const std::lock_guard lock(m_mutex);
        return m_taken.size();
    }

    /// Returns the number of images that wait.
    std::size_t delivered() const
    {
        const std::lock_guard lock(m_mutex);
        return m_output.size();
    }

    std::uint64_t underruns() const
    {
        const std::lock_guard lock(m_mutex);
        return m_underruns;
    }

private:
    std::list<std::vector<std::uint8_t>> m_memory;
    mutable std::mutex m_mutex; // Guards the members below.
    std::deque<Buffer> m_input;
    std::set<void *> m_taken;
    std::set<void *> m_flushed; // Taken buffers that return to the input.
    std::deque<Delivered> m_output;
    std::uint64_t m_underruns = 0;
    std::condition_variable m_isDelivered;
};
