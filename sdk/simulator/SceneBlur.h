#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/// Blurs a picture, line by line, by the mean of a square around each pixel. Only the lines that the squares
/// reach are kept. With a step of 2, every pixel is mixed with pixels of its own colour in a mosaic of colour
/// filters.
class SceneBlur
{
public:
    /// Columns for which one radius is used.
    static constexpr int tileWidth = 32;

    /// Radii are at most `maxRadius` steps.
    SceneBlur(int width, int maxRadius, int step);

    /// Number of pixels that addLine() needs on each side of the blurred ones, and of lines above and below.
    int border() const { return m_border; }

    /// Adds the next line: width + 2 * border() values between -2 and 2.
    void addLine(const float *values);

    /// Adds `count` blurred values, of the line that was added border() lines before the last one, from
    /// column `x` on, to the sums. The radius is in pixels and at most the maximum.
    void addBlurred(int x, int count, double radius, float *sums) const;

private:
    const std::uint32_t *prefixSums(int linesBack) const;

    int m_border;
    int m_step;
    std::size_t m_length; // Values in a line.
    std::size_t m_lines; // Lines that are kept.
    std::size_t m_next = 0; // Number of lines added.
    std::vector<std::uint32_t> m_prefixSums; // Sums of everything above and to the left; they may overflow.
};
