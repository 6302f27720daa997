#pragma once

#include "sdk/image/PixelLayout.h"
#include "sdk/image/RawImage.h"
#include "tools/kit/measure/Measurements.h"

#include <array>

/// Knows what the samples of a line are. A line has as many samples per pixel as ImageConverter::toWords()
/// writes; what they are repeats after some samples. Components are numbered from 0.
class ComponentMap
{
public:
    explicit ComponentMap(const PixelLayout &layout);

    unsigned count() const { return m_count; } ///< Number of components.
    MeasuredComponent component(unsigned index) const { return m_components[index]; }

    unsigned samplesPerPixel() const { return m_samplesPerPixel; }

    /// Returns after how many samples of a line the components repeat: 1 to 4.
    unsigned period() const { return m_period; }

    /// Returns the component of a sample, which is counted from the start of the picture's line.
    unsigned componentOf(std::uint32_t y, std::size_t sample) const
    {
        return m_indices[y % 2][sample % m_period];
    }

private:
    unsigned m_count = 1;
    unsigned m_samplesPerPixel = 1;
    unsigned m_period = 1;
    std::array<MeasuredComponent, 4> m_components{};
    std::array<std::array<std::uint8_t, 4>, 2> m_indices{}; ///< For even and odd lines.
};

/// Returns the number of lines that a picture has with all their components.
std::uint32_t completeLines(const RawImage &picture, const PixelLayout &layout);

/// Returns the part of a region that lies in complete lines of the picture; its size may be 0.
Region cutToPicture(const Region &region, const RawImage &picture, std::uint32_t lines);
