#pragma once

#include "sdk/image/ImageConverter.h"

#include <string_view>
#include <vector>

/// A picture without padding that can be written component by component.
class TestPicture
{
public:
    TestPicture(std::string_view format, std::uint32_t width, std::uint32_t height)
        : TestPicture(findPixelFormat(format)->code, width, height)
    { }
    TestPicture(std::uint32_t pixelFormat, std::uint32_t width, std::uint32_t height)
        : m_bytes(std::size_t(width) * height * bitsPerPixel(pixelFormat) / 8),
          m_size(m_bytes.size()),
          m_width(width),
          m_height(height),
          m_pixelFormat(pixelFormat)
    { }

    RawImage raw() const { return {m_bytes.data(), m_size, m_width, m_height, 0, m_pixelFormat, false}; }
    Region region() const { return {0, 0, m_width, m_height}; }

    /// Fills the picture with bytes that look random and are the same in each run.
    TestPicture &fillRandomly()
    {
        std::uint32_t state = 1;
        for (std::uint8_t &byte : m_bytes) {
            state = state * 1664525U + 1013904223U;
            byte = static_cast<std::uint8_t>(state >> 24U);
        }
        return *this;
    }

    /// Writes the component with the given index; components follow each other without gaps.
    void set(std::size_t index, unsigned bits, std::uint64_t value)
    {
        for (unsigned bit = 0; bit < bits; ++bit) {
            const std::size_t place = index * bits + bit;
            const unsigned mask = 1U << (place % 8);
            std::uint8_t &byte = m_bytes[place / 8];
            byte = static_cast<std::uint8_t>((value >> bit & 1U) != 0 ? byte | mask : byte & ~mask);
        }
    }

    void fill(unsigned bits, std::uint64_t value)
    {
        for (std::size_t i = 0; i < m_bytes.size() * 8 / bits; ++i)
            set(i, bits, value);
    }

    /// Lets the picture end after this number of bytes.
    void cut(std::size_t size) { m_size = size; }

private:
    std::vector<std::uint8_t> m_bytes;
    std::size_t m_size;
    std::uint32_t m_width;
    std::uint32_t m_height;
    std::uint32_t m_pixelFormat;
};
