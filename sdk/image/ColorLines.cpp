#include "sdk/image/ColorLines.h"

#include "sdk/image/YuvConversion.h"

#include <algorithm>

template <typename Sample>
void ColorLines<Sample>::start(
    const RawImage &picture, const PixelLayout &layout, const Region &region, Demosaicing demosaicing)
{
    m_reader.setPicture(picture, layout);
    m_region = region;
    for (std::vector<Sample> &color : m_colors)
        if (color.size() < region.width)
            color.resize(region.width);
    if (layout.format.kind == PixelKind::Bayer)
        m_demosaicing.start(m_reader, region.x, region.width, demosaicing);
    if (layout.format.kind == PixelKind::Yuv)
        m_weights = yuvWeights(layout.standard, sizeof(Sample) == 1 ? 8 : layout.format.depth);
}

template <typename Sample>
typename ColorLines<Sample>::Line ColorLines<Sample>::line(std::uint32_t y)
{
    const PixelLayout &layout = m_reader.layout();
    const std::uint32_t line = m_region.y + y;
    if (layout.format.kind == PixelKind::Bayer)
        return {m_demosaicing.line(line), false};
    const unsigned count = layout.screenChannels();
    const auto samples = m_reader.channels(line, m_region.x, m_region.width, count);
    std::array<const Sample *, 3> channels = {samples[0], samples[1], samples[2]};
    if (layout.format.kind == PixelKind::Yuv)
        return {convertYuv(channels), false};
    if (sizeof(Sample) > 1)
        equalizeRanges(channels);
    const bool staysValid = std::all_of(channels.begin(), channels.begin() + count,
        [this](const Sample *channel) { return m_reader.isInPicture(channel); });
    return {channels, staysValid};
}

template <typename Sample>
std::array<const Sample *, 3> ColorLines<Sample>::convertYuv(const std::array<const Sample *, 3> &yuv)
{
    m_reader.kernels().template of<Sample>().convertYuv(
        yuv, m_region.width, m_weights, {m_colors[0].data(), m_colors[1].data(), m_colors[2].data()});
    return {m_colors[0].data(), m_colors[1].data(), m_colors[2].data()};
}

/// Moves signed numbers into the range from 0, and gives red and blue of 5 bits the 6 bits of green.
template <typename Sample>
void ColorLines<Sample>::equalizeRanges(std::array<const Sample *, 3> &channels)
{
    const PixelLayout &layout = m_reader.layout();
    const std::size_t width = m_region.width;
    if (layout.number == Number::Signed) {
        const unsigned depth = std::min<unsigned>(layout.format.depth, 16);
        const unsigned sign = 1U << (depth - 1);
        const unsigned mask = (1U << depth) - 1;
        std::transform(channels[0], channels[0] + width, m_colors[0].begin(),
            [=](unsigned sample) { return static_cast<Sample>((sample ^ sign) & mask); });
        channels[0] = m_colors[0].data();
    }
    if (layout.packing != Packing::Rgb565)
        return;
    for (std::size_t channel = 0; channel < 3; channel += 2) {
        std::transform(channels[channel], channels[channel] + width, m_colors[channel].begin(),
            [](unsigned sample) { return static_cast<Sample>(sample << 1U | sample >> 4U); });
        channels[channel] = m_colors[channel].data();
    }
}

template class ColorLines<std::uint8_t>;
template class ColorLines<std::uint16_t>;
