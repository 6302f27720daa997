#include "sdk/image/BayerDemosaicing.h"

#include <algorithm>

namespace {

/// Returns the index inside of 0 to `count` - 1 that the index is mirrored to.
std::uint32_t mirrored(std::int64_t index, std::uint32_t count)
{
    if (count == 1)
        return 0;
    const std::int64_t last = std::int64_t(count) - 1;
    while (index < 0 || index > last)
        index = index < 0 ? -index : 2 * last - index;
    return static_cast<std::uint32_t>(index);
}

} // namespace

template <typename Sample>
void BayerDemosaicing<Sample>::start(
    LineReader<Sample> &reader, std::uint32_t x, std::uint32_t width, Demosaicing method)
{
    m_reader = &reader;
    m_x = x;
    m_width = width;
    m_method = method;
    m_maximum = sizeof(Sample) == 1 ? 0xFF : (1 << reader.layout().format.depth) - 1;
    for (KeptLine &line : m_raw)
        line.y = noLine;
    for (KeptLine &line : m_green)
        line.y = noLine;
    for (std::vector<Sample> &color : m_colors)
        if (color.size() < width)
            color.resize(width);
}

template <typename Sample>
std::array<const Sample *, 3> BayerDemosaicing<Sample>::line(std::uint32_t y)
{
    const std::int64_t here = y;
    const BayerLines<Sample> lines = {rawLine(here - 1), rawLine(here), rawLine(here + 1)};
    const bool isRedLine = y % 2 == m_reader->layout().redY;
    const BayerColors<Sample> colors
        = {m_colors[isRedLine ? 0 : 2].data(), m_colors[1].data(), m_colors[isRedLine ? 2 : 0].data()};
    const SampleKernels<Sample> &kernels = m_reader->kernels().template of<Sample>();
    if (m_method == Demosaicing::Bilinear) {
        kernels.demosaicBilinear(lines, m_width, firstGreen(here), colors);
    } else {
        const BayerLines<Sample> greens = {greenLine(here - 1), greenLine(here), greenLine(here + 1)};
        kernels.findColors(lines, greens, m_width, firstGreen(here), m_maximum, colors);
    }
    return {m_colors[0].data(), m_colors[1].data(), m_colors[2].data()};
}

/// Returns the samples of the region, with `margin` samples before and after them.
template <typename Sample>
const Sample *BayerDemosaicing<Sample>::rawLine(std::int64_t y)
{
    const RawImage &picture = m_reader->picture();
    const std::uint32_t line = mirrored(y, picture.height);
    KeptLine &kept = m_raw[line % m_raw.size()];
    if (kept.y == line)
        return kept.samples.data() + margin;
    kept.y = line;
    if (kept.samples.size() < m_width + 2 * margin)
        kept.samples.resize(m_width + 2 * margin);
    const std::uint32_t begin = m_x - std::min(m_x, margin);
    const std::uint32_t end = m_x + m_width + std::min(picture.width - m_x - m_width, margin);
    const Sample *const input = m_reader->channels(line, begin, end - begin, 1)[0];
    Sample *const output = kept.samples.data() + margin;
    std::copy(input + (m_x - begin), input + (m_x - begin) + m_width, output);
    for (std::int64_t beside = 1; beside <= margin; ++beside) {
        output[-beside] = input[mirrored(m_x - beside, picture.width) - begin];
        output[m_width - 1 + beside] = input[mirrored(m_x + m_width - 1 + beside, picture.width) - begin];
    }
    return output;
}

/// Returns green for the pixels of the region, with one more before and after them.
template <typename Sample>
const Sample *BayerDemosaicing<Sample>::greenLine(std::int64_t here)
{
    KeptLine &kept = m_green[static_cast<std::size_t>(here + 4) % m_green.size()]; // `here` can be -1.
    if (kept.y == here)
        return kept.samples.data() + 1;
    kept.y = here;
    if (kept.samples.size() < m_width + 2)
        kept.samples.resize(m_width + 2);
    const std::array<const Sample *, 5> lines = {rawLine(here - 2) - 1, rawLine(here - 1) - 1,
        rawLine(here) - 1, rawLine(here + 1) - 1, rawLine(here + 2) - 1};
    m_reader->kernels().template of<Sample>().findGreen(
        lines, m_width + 2, 1 - firstGreen(here), m_maximum, kept.samples.data());
    return kept.samples.data() + 1;
}

/// Returns 0 if the first pixel of the region is green in this line, otherwise 1.
template <typename Sample>
unsigned BayerDemosaicing<Sample>::firstGreen(std::int64_t y) const
{
    const PixelLayout &layout = m_reader->layout();
    return 1 - static_cast<unsigned>((m_x + static_cast<std::uint64_t>(y) + layout.redX + layout.redY) % 2);
}

template class BayerDemosaicing<std::uint8_t>;
template class BayerDemosaicing<std::uint16_t>;
