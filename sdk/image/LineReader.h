#pragma once

#include "sdk/image/CorrectedLines.h"

/// Reads lines of a picture channel by channel, as samples of ComponentReader, with the correction if it fits
/// the picture.
template <typename Sample>
class LineReader
{
public:
    using Channels = std::array<const Sample *, 4>;

    explicit LineReader(const PixelKernels &kernels) : m_components(kernels), m_corrected(kernels) { }

    /// Applies to the pictures from the next setPicture() on.
    void setCorrection(const PlacedCorrection &correction) { m_corrected.setCorrection(correction); }

    void setPicture(const RawImage &picture, const PixelLayout &layout);
    const RawImage &picture() const { return m_components.picture(); }
    const PixelLayout &layout() const { return m_components.layout(); }
    const PixelKernels &kernels() const { return m_components.kernels(); }

    /// Returns the first `channels` channels of `count` pixels; the others are null. Pixels that share a
    /// component get it alike. If the line ends within a group of pixels, the last ones take the chroma that
    /// it lacks from the group before. The samples are valid until the next call.
    Channels channels(std::uint32_t y, std::uint32_t x, std::uint32_t count, unsigned channels);

    /// Writes the first `channels` channels of `count` pixels alternately.
    void write(std::uint32_t y, std::uint32_t x, std::uint32_t count, unsigned channels, Sample *output);

    /// Writes the components of `count` pixels in the order of the memory. Only for interleaved formats.
    void writeComponents(std::uint32_t y, std::uint32_t x, std::uint32_t count, Sample *output);

    /// Returns true if the sample is in the picture itself, and so stays valid.
    bool isInPicture(const Sample *sample) const { return m_components.isInPicture(sample); }

private:
    Channels interleaved(std::uint32_t y, std::uint32_t x, std::uint32_t count, unsigned channels);
    Channels planar(std::uint32_t y, std::uint32_t x, std::uint32_t count, unsigned channels);
    Channels semiplanar(std::uint32_t y, std::uint32_t x, std::uint32_t count);
    const Sample *readGroups(unsigned plane, std::uint32_t y, std::size_t first, std::size_t end);
    void distribute(const Sample *components, unsigned plane, std::size_t groups, unsigned channel);
    void permute(const Sample *components, unsigned plane, const BytePattern &pattern, Sample *output,
        std::size_t count);

    ComponentReader<Sample> m_components;
    CorrectedLines m_corrected;
    bool m_isCorrected = false;
    std::array<std::vector<Sample>, 4> m_planes; ///< Components of each plane of the picture.
    std::array<std::vector<Sample>, 4> m_channels;
};

extern template class LineReader<std::uint8_t>;
extern template class LineReader<std::uint16_t>;
