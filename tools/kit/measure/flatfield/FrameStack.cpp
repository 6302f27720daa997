#include "tools/kit/measure/flatfield/FrameStack.h"

#include "sdk/image/PixelLayout.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::uint32_t linesAtOnce = 16; // So the memory for unpacked lines stays small.

double pixelsOf(const ChannelMosaic &mosaic, std::size_t channel)
{
    return static_cast<double>(mosaic.columns(channel)) * mosaic.lines(channel);
}

} // namespace

bool isFlatFieldFormat(std::uint32_t pixelFormat)
{
    const PixelLayout &layout = findPixelLayout(pixelFormat);
    const PixelKind kind = layout.format.kind;
    return (kind == PixelKind::Mono || kind == PixelKind::Bayer) && layout.number == Number::Unsigned
        && layout.format.depth >= 8 && layout.format.depth <= 16;
}

FrameStack::FrameStack(bool isLineScan) : m_isLineScan(isLineScan) { }

Sentence FrameStack::begin(const RawImage &picture, std::uint32_t offsetX, std::uint32_t offsetY)
{
    const PixelLayout &layout = findPixelLayout(picture.pixelFormat);
    if (!isFlatFieldFormat(picture.pixelFormat))
        return {
            QT_TRANSLATE_NOOP("Sentence",
                "The pixel format %1 cannot be corrected. Choose a Mono or Bayer format of 8 to 16 bits."),
            {std::string(layout.format.name)}};
    const bool isBayer = layout.format.kind == PixelKind::Bayer;
    if (isBayer && m_isLineScan)
        return {QT_TRANSLATE_NOOP(
            "Sentence", "The colours of a line scan camera cannot be corrected. Choose a Mono format.")};
    m_mean.mosaic
        = {picture.width, m_isLineScan ? 1 : picture.height, isBayer ? 2U : 1U, layout.redX, layout.redY};
    m_mean.offsetX = offsetX;
    m_mean.offsetY = m_isLineScan ? 0 : offsetY;
    m_mean.depth = layout.format.depth;
    m_pixelFormat = picture.pixelFormat;
    m_lines = picture.height;
    m_channels.resize(m_mean.mosaic.channels());
    m_sums.resize(m_isLineScan ? 0 : m_mean.mosaic.pixels());
    m_lineSums.resize(m_isLineScan ? picture.width : 0);
    return {};
}

Sentence FrameStack::add(const RawImage &picture, std::uint32_t offsetX, std::uint32_t offsetY)
{
    if (isEmpty()) {
        if (const Sentence problem = begin(picture, offsetX, offsetY); !problem.isEmpty())
            return problem;
    }
    const bool isSame = picture.pixelFormat == m_pixelFormat && picture.width == m_mean.mosaic.width
        && picture.height == m_lines && offsetX == m_mean.offsetX
        && (m_isLineScan || offsetY == m_mean.offsetY);
    if (!isSame)
        return {QT_TRANSLATE_NOOP("Sentence",
            "The region or the pixel format has changed during the measurement. Measure again without "
            "changing them.")};
    m_converter.setCorrection({m_correction, offsetX, offsetY});
    PartLevels levels{};
    std::vector<std::uint16_t> words(std::size_t(picture.width) * linesAtOnce);
    for (std::uint32_t y = 0; y < picture.height; y += linesAtOnce) {
        const std::uint32_t lines = std::min(linesAtOnce, picture.height - y);
        m_converter.toWords(picture, {0, y, picture.width, lines}, words.data(), picture.width);
        for (std::uint32_t line = 0; line < lines; ++line)
            addLine(words.data() + std::size_t(line) * picture.width, y + line, levels);
    }
    endImage();
    divideByCounts(levels);
    m_partLevels.push_back(levels);
    return {};
}

void FrameStack::addLine(const std::uint16_t *words, std::uint32_t y, PartLevels &levels)
{
    const std::uint32_t width = m_mean.mosaic.width;
    const auto highest = static_cast<std::uint16_t>(m_mean.maxValue());
    for (std::uint32_t first = 0; first < m_mean.mosaic.step; ++first) {
        std::uint64_t sum = 0;
        std::uint64_t squares = 0;
        std::uint32_t clipped = 0;
        std::uint32_t black = 0;
        for (std::uint32_t x = first; x < width; x += m_mean.mosaic.step) {
            const std::uint64_t value = words[x];
            sum += value;
            squares += value * value;
            clipped += value >= highest;
            black += value == 0;
        }
        Channel &channel = m_channels[m_mean.mosaic.channel(first, m_isLineScan ? 0 : y)];
        channel.sum += static_cast<double>(sum);
        channel.imageSum += static_cast<double>(sum);
        channel.squares += static_cast<double>(squares);
        channel.count += m_mean.mosaic.columns(first);
        m_clipped += clipped;
        m_black += black;
    }
    if (m_isLineScan)
        std::transform(words, words + width, m_lineSums.begin(), m_lineSums.begin(),
            [](std::uint16_t word, double sum) { return sum + word; });
    else
        std::transform(words, words + width, m_sums.begin() + std::ptrdiff_t(y) * width,
            m_sums.begin() + std::ptrdiff_t(y) * width,
            [](std::uint16_t word, std::uint32_t sum) { return sum + word; });
    for (std::uint32_t part = 0; part < parts; ++part) {
        std::uint64_t sum = 0;
        const auto end = std::size_t(width) * (part + 1) / parts;
        for (std::size_t x = std::size_t(width) * part / parts; x < end; ++x)
            sum += words[x];
        levels[std::size_t(y) * parts / m_lines * parts + part] += static_cast<float>(sum);
    }
}

/// Adds the means of an image to what variance() needs.
void FrameStack::endImage()
{
    for (std::size_t i = 0; i < m_channels.size(); ++i) {
        Channel &channel = m_channels[i];
        const double mean = channel.imageSum / (pixelsOf(m_mean.mosaic, i) * (m_isLineScan ? m_lines : 1));
        channel.squaredMeans += mean * mean;
        channel.imageSum = 0;
    }
}

/// Turns the sums of the parts into means. A picture of few lines has no lines in some rows of parts, which
/// get the levels of the row before.
void FrameStack::divideByCounts(PartLevels &levels) const
{
    const std::size_t width = m_mean.mosaic.width;
    for (std::size_t i = 0; i < levels.size(); ++i) {
        const std::size_t row = i / parts;
        const std::size_t column = i % parts;
        const std::size_t firstLine = (m_lines * row + parts - 1) / parts;
        const std::size_t endLine = (m_lines * (row + 1) + parts - 1) / parts;
        const std::size_t columns = width * (column + 1) / parts - width * column / parts;
        if (endLine == firstLine)
            levels[i] = levels[i - parts]; // The first row has a line.
        else
            levels[i] /= static_cast<float>(std::max<std::size_t>((endLine - firstLine) * columns, 1));
    }
}

double FrameStack::valuesPerPart() const
{
    const std::uint32_t rows = m_lines < parts ? m_lines : parts;
    return std::max(1.0, static_cast<double>(m_mean.mosaic.width) * m_lines / (parts * rows));
}

double FrameStack::samplesPerPixel() const
{
    return static_cast<double>(count()) * (m_isLineScan ? m_lines : 1);
}

double FrameStack::variance(std::size_t channel) const
{
    const double samples = samplesPerPixel();
    if (samples < 2)
        return 0;
    const ChannelMosaic &mosaic = m_mean.mosaic;
    double squaresOfSums = 0;
    for (std::uint32_t y = mosaic.firstY(channel); y < mosaic.height; y += mosaic.step) {
        for (std::uint32_t x = mosaic.firstX(channel); x < mosaic.width; x += mosaic.step) {
            const std::size_t pixel = std::size_t(y) * mosaic.width + x;
            const double sum = m_isLineScan ? m_lineSums[pixel] : m_sums[pixel];
            squaresOfSums += sum * sum;
        }
    }
    const double difference = m_channels[channel].squares - squaresOfSums / samples;
    // What all pixels have in common from image to image is the light's.
    const auto images = static_cast<double>(count());
    const double mean = level(channel);
    const double flicker = (m_channels[channel].squaredMeans - images * mean * mean) * samples / images;
    return std::max(0.0, (difference / pixelsOf(mosaic, channel) - flicker) / (samples - 1));
}

MeanImage FrameStack::mean() const
{
    MeanImage mean = m_mean;
    mean.samples = samplesPerPixel();
    mean.values.reserve(m_mean.mosaic.pixels());
    for (const std::uint32_t sum : m_sums)
        mean.values.push_back(static_cast<float>(sum / mean.samples));
    for (const double sum : m_lineSums)
        mean.values.push_back(static_cast<float>(sum / mean.samples));
    for (std::size_t channel = 0; channel < m_channels.size(); ++channel)
        mean.temporalVariance.push_back(variance(channel));
    return mean;
}

double FrameStack::level(std::size_t channel) const
{
    return m_channels[channel].sum / m_channels[channel].count;
}

double FrameStack::brightestLevel() const
{
    double highest = 0;
    for (std::size_t channel = 0; channel < m_channels.size(); ++channel)
        highest = std::max(highest, level(channel));
    return highest;
}

double FrameStack::clippedShare() const
{
    return m_clipped / (samplesPerPixel() * static_cast<double>(m_mean.mosaic.pixels()));
}

double FrameStack::blackShare() const
{
    return m_black / (samplesPerPixel() * static_cast<double>(m_mean.mosaic.pixels()));
}

double FrameStack::temporalVariance() const
{
    double sum = 0;
    for (std::size_t channel = 0; channel < m_channels.size(); ++channel)
        sum += variance(channel);
    return sum / static_cast<double>(m_channels.size());
}
