#pragma once

#include "sdk/producer/BufferPool.h"

#include <array>
#include <gtest/gtest.h>
#include <map>
#include <string>

/// Provides a pool whose buffers are named by letters.
class BufferPoolTest : public testing::Test
{
protected:
    /// Announces one buffer for each letter.
    void announce(const std::string &letters)
    {
        for (const char letter : letters)
            EXPECT_EQ(pool.announce(&memory[letter], sizeof memory[letter], nullptr, &handles[letter]),
                GenTL::GC_ERR_SUCCESS);
    }

    void queue(const std::string &letters)
    {
        for (const char letter : letters)
            EXPECT_EQ(pool.queue(handles[letter]), GenTL::GC_ERR_SUCCESS);
    }

    GenTL::GC_ERROR start(std::uint64_t images = GenTL::GENTL_INFINITE) { return pool.start(images, 1, 1); }

    /// Takes a buffer and returns its letter, or '-' if there is none.
    char take()
    {
        const auto buffer = pool.take();
        if (!buffer)
            return '-';
        const char letter = letterOf(buffer->handle);
        taken[letter] = *buffer;
        return letter;
    }

    void deliver(char letter) { pool.deliver(taken[letter], image); }

    /// Fetches a buffer and returns its letter, or '-' if there is none.
    char fetch(std::uint64_t timeout = 0)
    {
        GenTL::EVENT_NEW_BUFFER_DATA data{};
        std::size_t size = sizeof data;
        const GenTL::GC_ERROR error = pool.fetch(*event, &data, &size, timeout);
        EXPECT_TRUE(error == GenTL::GC_ERR_SUCCESS || error == GenTL::GC_ERR_TIMEOUT) << error;
        return error ? '-' : letterOf(data.BufferHandle);
    }

    GenTL::GC_ERROR fetchCode(std::uint64_t timeout)
    {
        std::size_t size = 0;
        return pool.fetch(*event, nullptr, &size, timeout);
    }

    char letterOf(GenTL::BUFFER_HANDLE handle) const
    {
        for (const auto &[letter, known] : handles)
            if (known == handle)
                return letter;
        return '?';
    }

    bool flag(char letter, GenTL::BUFFER_INFO_CMD command)
    {
        GenTL::bool8_t value = 2;
        GenTL::INFO_DATATYPE type = GenTL::INFO_DATATYPE_UNKNOWN;
        std::size_t size = sizeof value;
        EXPECT_EQ(
            pool.info(handles[letter], command, InfoOutput(&type, &value, &size)), GenTL::GC_ERR_SUCCESS);
        return value != 0;
    }

    /// Returns the state of a buffer, u(nqueued), q(ueued) or f(illing), and n(ew) or o(ld) data.
    std::string state(char letter)
    {
        const bool isFilling = flag(letter, GenTL::BUFFER_INFO_IS_ACQUIRING);
        const bool isQueued = flag(letter, GenTL::BUFFER_INFO_IS_QUEUED);
        EXPECT_TRUE(isQueued || !isFilling);
        return std::string(isFilling ? "f"
                       : isQueued    ? "q"
                                     : "u")
            + (flag(letter, GenTL::BUFFER_INFO_NEW_DATA) ? "n" : "o");
    }

    /// Returns the letters that remain in the input pool and in the output queue.
    std::string drain()
    {
        std::string letters;
        for (char letter = take(); letter != '-'; letter = take())
            letters += letter;
        letters += '/';
        for (char letter = fetch(); letter != '-'; letter = fetch())
            letters += letter;
        return letters;
    }

    BufferPool pool{StreamTraits{GenTL::TLTypeGEVName, 1000}};
    std::map<char, std::array<std::uint8_t, 16>> memory;
    std::map<char, GenTL::BUFFER_HANDLE> handles;
    std::map<char, BufferQueue::Buffer> taken;
    std::shared_ptr<EventState> event = pool.registerEvent();
    FilledImage image;
};
