#pragma once

#include "sdk/image/BayerDemosaicing.h"

/// Reads a region of a picture line by line as grey or as red, green and blue. For 16-bit samples, the range
/// is that of the format's depth, but at most 16 bits.
template <typename Sample>
class ColorLines
{
public:
    struct Line
    {
        std::array<const Sample *, 3> channels{}; ///< One or three.
        bool staysValid
            = false; ///< True if the samples are in the picture; otherwise the next line replaces them.
    };

    explicit ColorLines(const PixelKernels &kernels) : m_reader(kernels) { }

    void start(
        const RawImage &picture, const PixelLayout &layout, const Region &region, Demosaicing demosaicing);

    /// Returns line `y` of the region.
    Line line(std::uint32_t y);

    LineReader<Sample> &reader() { return m_reader; }

private:
    std::array<const Sample *, 3> convertYuv(const std::array<const Sample *, 3> &yuv);
    void equalizeRanges(std::array<const Sample *, 3> &channels);

    LineReader<Sample> m_reader;
    BayerDemosaicing<Sample> m_demosaicing;
    Region m_region;
    YuvWeights m_weights{};
    std::array<std::vector<Sample>, 3> m_colors;
};

extern template class ColorLines<std::uint8_t>;
extern template class ColorLines<std::uint16_t>;
