#pragma once

#include "sdk/image/PixelKernels.h"
#include "sdk/image/WideNumbers.h"

#include <vector>

/// Reads components of a picture, in the order of the memory, as samples of 8 bits for the screen or of 16
/// bits with the values of the picture. Bytes that the picture lacks are read as 0.
///
/// Values that do not fit become samples as follows. The highest bits of integers are kept. Fewer than 8 bits
/// are scaled to the whole range of 8 bits. For the screen, the smallest signed number is black and the
/// highest one white; 16 bits contain signed numbers in two's complement. Floating-point numbers are mapped
/// to the whole range: the smallest finite number of the component in the whole picture becomes 0, the
/// highest one the highest sample. This takes a pass of its own over such a picture. What is not a number
/// becomes 0.
template <typename Sample>
class ComponentReader
{
public:
    explicit ComponentReader(const PixelKernels &kernels) : m_kernels(&kernels) { }

    void setPicture(const RawImage &picture, const PixelLayout &layout);
    const RawImage &picture() const { return m_picture; }
    const PixelLayout &layout() const { return *m_layout; }
    const PixelKernels &kernels() const { return *m_kernels; }

    /// Returns the components that line `y` of the plane has.
    std::size_t count(unsigned plane, std::uint32_t y) const { return m_geometry.line(plane, y).count; }

    /// Returns `count` components of the line from the one with the index `first`, which begins a pixel. They
    /// are in the picture itself or in `buffer`, which grows as needed; in any case some bytes behind the
    /// components are readable up to end().
    const Sample *read(
        unsigned plane, std::uint32_t y, std::size_t first, std::size_t count, std::vector<Sample> &buffer);

    /// Returns the end of the memory that contains the components that read() has returned.
    const std::uint8_t *end(const Sample *components, const std::vector<Sample> &buffer) const;

    /// Returns true if the sample is in the picture itself.
    bool isInPicture(const Sample *sample) const;

private:
    /// Readable bytes.
    struct Bytes
    {
        const std::uint8_t *begin;
        const std::uint8_t *end;
    };

    Bytes bytes(std::size_t offset, std::size_t count);
    const Sample *readBytes(std::size_t offset, std::size_t count, std::vector<Sample> &buffer);
    void readWords(std::size_t offset, std::size_t count, Sample *output);
    void readBits(std::size_t offset, std::size_t first, std::size_t count, Sample *output);
    const Sample *readPairs(
        std::size_t offset, std::size_t first, std::size_t count, std::vector<Sample> &buffer);
    void readFloats(unsigned plane, std::size_t offset, std::size_t count, Sample *output);
    template <typename Integer>
    void readIntegers(std::size_t offset, std::size_t count, Sample *output);
    void readRgb10p32(std::size_t offset, std::size_t pixels, Sample *output);
    void readRgb565(std::size_t offset, std::size_t pixels, Sample *output);
    void readUnknown(std::size_t offset, std::size_t first, std::size_t count, Sample *output);

    const PixelKernels *m_kernels;
    RawImage m_picture;
    const PixelLayout *m_layout = nullptr;
    PictureGeometry m_geometry;
    std::array<FloatRange, 4> m_ranges{}; ///< Only for floating-point numbers.
    std::vector<std::uint8_t> m_bytes; ///< A copy of bytes that the picture contains only in part.
};

extern template class ComponentReader<std::uint8_t>;
extern template class ComponentReader<std::uint16_t>;
