#pragma once

#include "sdk/image/ImageConverter.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

/// Finds the pixels whose raw values are at an end of the range of their format: of the colours or of the
/// grey value, not of alpha and chroma. Luma of a limited range ends where its standard says. Formats without
/// a fixed range, which are floating-point numbers and unknown formats, have no such pixels.
class ClipMarks
{
public:
    static constexpr std::uint8_t dark = 1; ///< A component is at the lowest value.
    static constexpr std::uint8_t bright = 2; ///< A component is at the highest value.

    /// Returns for each pixel of a part of line `y` which of the bits above apply. The result is valid until
    /// the next call.
    const std::uint8_t *line(const RawImage &picture, std::uint32_t x, std::uint32_t y, std::uint32_t width);

    /// Paints those of `width` x `height` output pixels that show a bright or dark pixel of the region, even
    /// if it is one of many. Bright ones become red, the remaining dark ones blue.
    void paint(const RawImage &picture, const Region &region, std::uint32_t width, std::uint32_t height,
        std::uint32_t *output, std::size_t stride);

private:
    const std::uint8_t *lines(
        const RawImage &picture, const Region &region, std::uint32_t begin, std::uint32_t end);

    ImageConverter m_converter;
    std::vector<std::uint16_t> m_words;
    std::vector<std::uint8_t> m_marks;
    std::optional<std::uint32_t> m_present; ///< The line of the region that paint() has found marks for last.
    std::vector<std::uint8_t> m_lines; ///< The marks of all lines that an output line shows.
};
