#pragma once

#include <cstddef>
#include <cstdint>

/// The channels of a sensor: one for grey, or one for each of the four places of a Bayer pattern. Every
/// channel is measured on its own, so colours do not disturb the measurement.
struct ChannelMosaic
{
    std::uint32_t width = 0; ///< Pixels of the field.
    std::uint32_t height = 0; ///< 1 for a line scan sensor.
    std::uint32_t step = 1; ///< Distance of the pixels of a channel: 2 for a Bayer pattern.
    std::uint32_t redX = 0; ///< Column and line of the first red pixel of a Bayer pattern.
    std::uint32_t redY = 0;

    std::size_t channels() const { return std::size_t(step) * step; }
    std::size_t pixels() const { return std::size_t(width) * height; }

    /// Returns the first column and the first line of a channel.
    std::uint32_t firstX(std::size_t channel) const { return static_cast<std::uint32_t>(channel % step); }
    std::uint32_t firstY(std::size_t channel) const { return static_cast<std::uint32_t>(channel / step); }

    /// Returns the channel of the pixel.
    std::size_t channel(std::uint32_t x, std::uint32_t y) const
    {
        return std::size_t(y % step) * step + x % step;
    }

    /// Returns how many pixels of the channel a line or a column has.
    std::uint32_t columns(std::size_t channel) const { return (width - firstX(channel) + step - 1) / step; }
    std::uint32_t lines(std::size_t channel) const { return (height - firstY(channel) + step - 1) / step; }

    /// Returns "Mono", "R", "Gr", "Gb" or "B"; "Gr" is the green pixel in a line with red ones.
    const char *name(std::size_t channel) const
    {
        if (step == 1)
            return "Mono";
        const bool isRedColumn = firstX(channel) == redX;
        const bool isRedLine = firstY(channel) == redY;
        if (isRedLine)
            return isRedColumn ? "R" : "Gr";
        return isRedColumn ? "Gb" : "B";
    }

    /// Returns true if both channels have the same colour.
    bool isSameColor(std::size_t first, std::size_t second) const
    {
        return first == second || (name(first)[0] == 'G' && name(second)[0] == 'G');
    }
};
