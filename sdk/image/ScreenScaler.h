#pragma once

#include "sdk/image/ColorLines.h"

/// Scales lines of 8-bit samples to the size that a screen needs, in width and height independently.
///
/// Enlarging repeats the nearest pixel, so that pixels stay visible. Reducing halves the size by means of two
/// pixels as often as it stays at least as large as wanted, and then interpolates linearly between two
/// pixels. Every pixel of the picture contributes, so thin lines do not vanish and noise is averaged; and no
/// pixel of the output depends on more than two pixels of the last step, which makes it much faster than a
/// filter of the full width. Means of lines are rounded up and means of columns down, so that the brightness
/// stays.
class ScreenScaler
{
public:
    /// Writes lines of `height` output pixels, each with `channels` bytes per pixel. `from` is the size of
    /// the region that `lines` have been started with.
    struct Target
    {
        std::uint32_t width;
        std::uint32_t height;
        unsigned channels;
        std::uint8_t *output;
        std::size_t stride;
    };
    void scale(ColorLines<std::uint8_t> &lines, const Region &from, const Target &target);

private:
    using Row = std::array<const std::uint8_t *, 3>;
    using RowBuffer = std::array<std::vector<std::uint8_t>, 3>;

    /// How one axis is scaled.
    struct Axis
    {
        void set(std::uint32_t from, std::uint32_t to);
        bool isReduced() const { return to < from; }
        /// Returns the pixel that an enlarged or unchanged axis shows.
        std::uint32_t nearest(std::uint32_t index) const;
        /// Returns where an output pixel of a reduced axis lies after all halvings, in units of a pixel's
        /// `weightUnit`-th part.
        std::uint32_t position(std::uint32_t index) const;

        std::uint32_t from = 0;
        std::uint32_t to = 0;
        unsigned halvings = 0;
        std::uint32_t halved = 0; ///< Pixels after all halvings.
    };
    /// A row after all halvings of height and width.
    struct HalvedRow
    {
        std::uint32_t index = 0xFFFFFFFF;
        Row row{};
        RowBuffer buffer;
    };

    void planColumns();
    Row sourceRow(std::uint32_t y);
    Row persistentRow(std::uint32_t y, RowBuffer &buffer);
    Row halvedRow(unsigned level, std::uint32_t index, RowBuffer &buffer);
    Row withHalvedColumns(const Row &row, RowBuffer &buffer);
    Row interpolatedRow(std::uint32_t y);
    const HalvedRow &cachedRow(std::uint32_t index);
    void writeRow(const Row &row, std::uint8_t *output);
    void scaleColumns(const std::uint8_t *input, std::uint8_t *output);

    ColorLines<std::uint8_t> *m_lines = nullptr;
    const PixelKernels *m_kernels = nullptr;
    unsigned m_channels = 1;
    Axis m_columns;
    Axis m_rows;
    std::vector<std::uint32_t> m_nearestColumns;
    std::vector<InterpolationStep> m_steps;
    std::array<HalvedRow, 2> m_cache; ///< Row i is in entry i % 2.
    std::vector<std::array<RowBuffer, 2>> m_halves; ///< For each halving, the two rows that it needs.
    RowBuffer m_blended;
    RowBuffer m_tall; ///< A row whose width is not yet halved.
    RowBuffer m_spare;
    RowBuffer m_scaled;
};
