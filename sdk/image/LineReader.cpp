#include "sdk/image/LineReader.h"

#include <algorithm>

namespace {

/// Returns the pattern that puts the first `channels` channels of a pixel into their order.
template <typename Sample>
BytePattern channelOrder(const Arrangement &arrangement, unsigned channels)
{
    BytePattern pattern;
    pattern.inputStep = static_cast<unsigned>(arrangement.components * sizeof(Sample));
    pattern.outputStep = static_cast<unsigned>(channels * sizeof(Sample));
    for (std::size_t i = 0; i < pattern.outputStep; ++i)
        pattern.source[i] = static_cast<std::uint8_t>(
            arrangement.positions[i / sizeof(Sample)][0] * sizeof(Sample) + i % sizeof(Sample));
    return pattern;
}

/// Returns the pattern that picks one channel of a group of pixels.
template <typename Sample>
BytePattern channelPattern(const Arrangement &arrangement, unsigned channel)
{
    BytePattern pattern;
    pattern.inputStep = static_cast<unsigned>(arrangement.components * sizeof(Sample));
    pattern.outputStep = static_cast<unsigned>(arrangement.pixels * sizeof(Sample));
    for (std::size_t i = 0; i < pattern.outputStep; ++i)
        pattern.source[i] = static_cast<std::uint8_t>(
            arrangement.positions[channel][i / sizeof(Sample)] * sizeof(Sample) + i % sizeof(Sample));
    return pattern;
}

} // namespace

template <typename Sample>
void LineReader<Sample>::setPicture(const RawImage &picture, const PixelLayout &layout)
{
    m_components.setPicture(picture, layout);
    m_isCorrected = m_corrected.setPicture(picture, layout);
}

template <typename Sample>
typename LineReader<Sample>::Channels LineReader<Sample>::channels(
    std::uint32_t y, std::uint32_t x, std::uint32_t count, unsigned channels)
{
    switch (layout().planes) {
    case Planes::Planar:
        return planar(y, x, count, channels);
    case Planes::Semiplanar420:
    case Planes::Semiplanar422:
        return semiplanar(y, x, count);
    default:
        return interleaved(y, x, count, channels);
    }
}

template <typename Sample>
void LineReader<Sample>::write(
    std::uint32_t y, std::uint32_t x, std::uint32_t count, unsigned channels, Sample *output)
{
    const Arrangement &arrangement = layout().arrangement;
    if (layout().planes == Planes::Interleaved && arrangement.pixels == 1 && arrangement.components > 1) {
        const std::size_t size = arrangement.components;
        const Sample *const components = m_components.read(0, y, x * size, count * size, m_planes[0]);
        permute(components, 0, channelOrder<Sample>(arrangement, channels), output,
            std::size_t(count) * channels);
        return;
    }
    const Channels samples = this->channels(y, x, count, channels);
    for (unsigned channel = 0; channel < channels; ++channel)
        for (std::size_t i = 0; i < count; ++i)
            output[i * channels + channel] = samples[channel][i];
}

template <typename Sample>
void LineReader<Sample>::writeComponents(
    std::uint32_t y, std::uint32_t x, std::uint32_t count, Sample *output)
{
    const std::size_t perPixel = layout().arrangement.components / layout().arrangement.pixels;
    const Sample *const components = m_components.read(0, y, x * perPixel, count * perPixel, m_planes[0]);
    std::copy(components, components + count * perPixel, output);
}

template <typename Sample>
typename LineReader<Sample>::Channels LineReader<Sample>::interleaved(
    std::uint32_t y, std::uint32_t x, std::uint32_t count, unsigned channels)
{
    const Arrangement &arrangement = layout().arrangement;
    if (m_isCorrected)
        return {m_corrected.template read<Sample>(y, x, count)};
    if (arrangement.components == 1)
        return {m_components.read(0, y, x, count, m_planes[0])};
    std::size_t firstGroup = x / arrangement.pixels;
    const std::size_t endGroup = (std::size_t(x) + count - 1) / arrangement.pixels + 1;
    const bool isCut = endGroup * arrangement.components > m_components.count(0, y);
    if (isCut && firstGroup > 0)
        --firstGroup; // It has the chroma that the last group lacks.
    const Sample *const components
        = readGroups(0, y, firstGroup * arrangement.components, endGroup * arrangement.components);
    Channels result{};
    for (unsigned channel = 0; channel < channels; ++channel) {
        distribute(components, 0, endGroup - firstGroup, channel);
        result[channel] = m_channels[channel].data() + (x - firstGroup * arrangement.pixels);
    }
    return result;
}

template <typename Sample>
typename LineReader<Sample>::Channels LineReader<Sample>::planar(
    std::uint32_t y, std::uint32_t x, std::uint32_t count, unsigned channels)
{
    Channels result{};
    for (unsigned channel = 0; channel < channels; ++channel) {
        const Sample *const samples = m_components.read(channel, y, x, count, m_planes[channel]);
        result[channel] = samples;
        if (isInPicture(samples) || samples == m_planes[channel].data())
            continue;
        // The samples are where the next call of read() may put others.
        std::copy(samples, samples + count, m_planes[channel].begin());
        result[channel] = m_planes[channel].data();
    }
    return result;
}

template <typename Sample>
typename LineReader<Sample>::Channels LineReader<Sample>::semiplanar(
    std::uint32_t y, std::uint32_t x, std::uint32_t count)
{
    const Arrangement &arrangement = layout().arrangement;
    const std::size_t firstGroup = x / arrangement.pixels;
    const std::size_t endGroup = (std::size_t(x) + count - 1) / arrangement.pixels + 1;
    const Sample *const chroma
        = m_components.read(1, y, 2 * firstGroup, 2 * (endGroup - firstGroup), m_planes[1]);
    Channels result{};
    for (unsigned channel = 1; channel < 3; ++channel) {
        distribute(chroma, 1, endGroup - firstGroup, channel);
        result[channel] = m_channels[channel].data() + (x - firstGroup * arrangement.pixels);
    }
    result[0] = m_components.read(0, y, x, count, m_planes[0]);
    return result;
}

/// Returns the components from `first` up to `end`, which are whole groups, and completes the last group.
template <typename Sample>
const Sample *LineReader<Sample>::readGroups(
    unsigned plane, std::uint32_t y, std::size_t first, std::size_t end)
{
    std::vector<Sample> &buffer = m_planes[plane];
    const std::size_t available = std::min(end, m_components.count(plane, y));
    const Sample *const components = m_components.read(plane, y, first, available - first, buffer);
    if (available == end)
        return components;
    if (buffer.size() < end - first + 16) // Kernels can read some samples ahead.
        buffer.resize(end - first + 16);
    if (components != buffer.data())
        std::copy(components, components + (available - first), buffer.begin());
    const std::size_t groupSize = layout().arrangement.components;
    constexpr unsigned sampleBits = 8 * sizeof(Sample);
    const unsigned depth = std::min<unsigned>(layout().format.depth, sampleBits);
    for (std::size_t i = available - first; i < end - first; ++i)
        buffer[i] = i >= groupSize ? buffer[i - groupSize] : static_cast<Sample>(1U << (depth - 1));
    return buffer.data();
}

/// Fills one channel from groups of components.
template <typename Sample>
void LineReader<Sample>::distribute(
    const Sample *components, unsigned plane, std::size_t groups, unsigned channel)
{
    const Arrangement &arrangement = layout().arrangement;
    std::vector<Sample> &output = m_channels[channel];
    const std::size_t count = groups * arrangement.pixels;
    if (output.size() < count)
        output.resize(count);
    permute(components, plane, channelPattern<Sample>(arrangement, channel), output.data(), count);
}

template <typename Sample>
void LineReader<Sample>::permute(
    const Sample *components, unsigned plane, const BytePattern &pattern, Sample *output, std::size_t count)
{
    kernels().permute(reinterpret_cast<const std::uint8_t *>(components),
        m_components.end(components, m_planes[plane]), pattern, reinterpret_cast<std::uint8_t *>(output),
        count * sizeof(Sample));
}

template class LineReader<std::uint8_t>;
template class LineReader<std::uint16_t>;
