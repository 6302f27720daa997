#include "tools/kit/measure/taps/TapStack.h"

#include "sdk/image/PixelFormat.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::uint32_t blockSize = 16; // Pixels; the sides of the parts in which movement is looked for.

double medianOf(std::vector<double> values)
{
    if (values.empty())
        return 0;
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace

TapStack::TapStack(const TapLayout &layout, const SensorPlace &place) : m_layout(layout), m_place(place) { }

Sentence TapStack::begin(const RawImage &image)
{
    const PixelFormat *const format = findPixelFormat(image.pixelFormat);
    const bool isUsable = format && (format->kind == PixelKind::Mono || format->kind == PixelKind::Bayer)
        && format->depth <= 16;
    if (!isUsable)
        return {QT_TRANSLATE_NOOP("Sentence",
            "Taps cannot be measured in this pixel format. Choose a Mono or Bayer format of 8 to 16 bits, "
            "then "
            "measure again.")};
    m_picture.isBayer = format->kind == PixelKind::Bayer;
    if (m_picture.isBayer && (m_layout.tapsX > 1 || m_layout.tapsY > 1))
        return {QT_TRANSLATE_NOOP("Sentence",
            "The taps read neighbouring pixels in turn, which have different colours, so taps and colours "
            "cannot be told apart. Choose a layout of stripes by hand.")};
    if ((m_layout.tapsX > 1 && m_place.binningX > 1) || (m_layout.tapsY > 1 && m_place.binningY > 1))
        return {QT_TRANSLATE_NOOP(
            "Sentence", "Binning adds up pixels of several taps. Switch it off, then measure again.")};
    m_pixelFormat = image.pixelFormat;
    m_picture.width = image.width;
    m_picture.height = image.height;
    m_picture.maxValue = std::ldexp(1, format->depth) - 1;
    m_picture.map = TapMap(m_layout, m_place, image.width, image.height);
    m_picture.mean.assign(std::size_t(image.width) * image.height, 0);
    m_words.resize(m_picture.mean.size());
    m_sums.resize(m_layout.tapCount());
    return {};
}

Sentence TapStack::add(const RawImage &image)
{
    if (m_picture.imageCount == 0) {
        if (Sentence problem = begin(image); !problem.isEmpty())
            return problem;
    }
    if (image.width != m_picture.width || image.height != m_picture.height
        || image.pixelFormat != m_pixelFormat)
        return {QT_TRANSLATE_NOOP("Sentence",
            "The size or the format of the images has changed during the measurement. Measure again.")};
    m_words.swap(m_previous);
    m_words.resize(m_picture.mean.size());
    m_converter.toWords(image, {0, 0, image.width, image.height}, m_words.data(), image.width);
    addValues();
    if (m_picture.imageCount == 0)
        m_firstBlocks = blockMeans();
    else
        addDifferences();
    ++m_picture.imageCount;
    return {};
}

void TapStack::addValues()
{
    const auto maxValue = static_cast<std::uint16_t>(m_picture.maxValue);
    std::size_t i = 0;
    for (std::uint32_t y = 0; y < m_picture.height; ++y) {
        for (std::uint32_t x = 0; x < m_picture.width; ++x, ++i) {
            Sums &sums = m_sums[m_picture.map.tapAt(x, y)];
            const std::uint16_t value = m_words[i];
            m_picture.mean[i] += value;
            ++sums.values;
            sums.value += value;
            sums.clipped += value >= maxValue ? 1 : 0;
            sums.black += value == 0 ? 1 : 0;
        }
    }
}

void TapStack::addDifferences()
{
    struct Difference
    {
        double count = 0;
        double sum = 0;
        double squares = 0;
    };
    std::vector<Difference> differences(m_sums.size());
    std::size_t i = 0;
    for (std::uint32_t y = 0; y < m_picture.height; ++y) {
        for (std::uint32_t x = 0; x < m_picture.width; ++x, ++i) {
            Difference &difference = differences[m_picture.map.tapAt(x, y)];
            const double value = static_cast<double>(m_words[i]) - m_previous[i];
            difference.count += 1;
            difference.sum += value;
            difference.squares += value * value;
        }
    }
    for (std::size_t tap = 0; tap < differences.size(); ++tap) {
        const Difference &difference = differences[tap];
        if (difference.count == 0)
            continue;
        const double mean = difference.sum / difference.count;
        m_sums[tap].variance += (difference.squares / difference.count - mean * mean) / 2;
        ++m_sums[tap].pairs;
    }
}

/// Returns the means of all whole blocks of the newest image.
std::vector<double> TapStack::blockMeans() const
{
    std::vector<double> means;
    const std::uint32_t height = std::min(blockSize, m_picture.height); // Line scan cameras send few lines.
    for (std::uint32_t y = 0; y + height <= m_picture.height; y += height) {
        for (std::uint32_t x = 0; x + blockSize <= m_picture.width; x += blockSize) {
            double sum = 0;
            for (std::uint32_t line = y; line < y + height; ++line) {
                for (std::uint32_t column = x; column < x + blockSize; ++column)
                    sum += m_words[std::size_t(line) * m_picture.width + column];
            }
            means.push_back(sum / (blockSize * height));
        }
    }
    return means;
}

/// Returns the share of the blocks whose mean differs between the first and the newest image by more than six
/// standard deviations. The median of all differences is that of the light.
double TapStack::movedShare() const
{
    std::vector<double> differences = blockMeans();
    for (std::size_t i = 0; i < differences.size(); ++i)
        differences[i] -= m_firstBlocks[i];
    if (differences.empty())
        return 0;
    const double median = medianOf(differences);
    double variance = 1.0 / 12; // At least the variance of the rounding to whole pixel values.
    for (const Sums &sums : m_sums) {
        if (sums.pairs > 0)
            variance = std::max(variance, sums.variance / static_cast<double>(sums.pairs));
    }
    const double pixels = blockSize * std::min(blockSize, m_picture.height);
    const double limit = 6 * std::sqrt(2 * variance / pixels);
    const auto count = std::count_if(differences.begin(), differences.end(),
        [&](double difference) { return std::abs(difference - median) > limit; });
    return static_cast<double>(count) / static_cast<double>(differences.size());
}

TapPicture TapStack::picture() const
{
    TapPicture picture = m_picture;
    const auto count = static_cast<float>(std::max<std::size_t>(picture.imageCount, 1));
    for (float &value : picture.mean)
        value /= count;
    for (const Sums &sums : m_sums) {
        const auto values = static_cast<double>(std::max<std::uint64_t>(sums.values, 1));
        const auto pairs = static_cast<double>(std::max<std::size_t>(sums.pairs, 1));
        picture.taps.push_back({sums.value / values, std::sqrt(std::max(0.0, sums.variance / pairs)),
            static_cast<double>(sums.clipped) / values, static_cast<double>(sums.black) / values});
    }
    picture.moved = movedShare();
    return picture;
}
