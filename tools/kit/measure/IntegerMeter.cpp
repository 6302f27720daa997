#include "tools/kit/measure/IntegerMeter.h"

#include "sdk/image/ClippingRange.h"

#include <algorithm>
#include <cmath>
#include <numeric>

/// The values of a format. Values are counted in ascending order, so those of signed formats are shifted.
struct IntegerMeter::Format
{
    const PixelLayout &layout;
    ComponentMap map;
    std::uint32_t values; ///< Number of different values.
    std::uint32_t signBit; ///< The highest bit of a signed format; 0 for other formats.

    explicit Format(const PixelLayout &pixelLayout)
        : layout(pixelLayout),
          map(pixelLayout),
          values(1U << pixelLayout.format.depth),
          signBit(pixelLayout.number == Number::Signed ? values / 2 : 0)
    { }

    double valueAt(std::uint32_t index) const { return double(index) - signBit; }

    std::uint32_t indexOf(std::uint16_t word) const { return (word & (values - 1)) ^ signBit; }
};

namespace {

constexpr unsigned maxBinBits = 12;

/// Counts every `step`-th word. Bits above the highest value are ignored.
void countWords(const std::uint16_t *word, const std::uint16_t *end, std::ptrdiff_t step,
    std::uint32_t highest, std::uint32_t signBit, std::uint32_t *even, std::uint32_t *odd)
{
    for (; end - word > step; word += 2 * step) {
        ++even[(word[0] & highest) ^ signBit];
        ++odd[(word[step] & highest) ^ signBit];
    }
    if (word < end)
        ++even[(word[0] & highest) ^ signBit];
}

double sumOf(const std::uint32_t *begin, const std::uint32_t *end)
{
    return std::accumulate(begin, end, 0.0);
}

} // namespace

void IntegerMeter::measure(
    const RawImage &picture, const Region &area, const MeasureRequest &request, Measurements &result)
{
    const Format format(findPixelLayout(picture.pixelFormat));
    count(picture, area, format);
    const unsigned shift
        = format.layout.format.depth > maxBinBits ? format.layout.format.depth - maxBinBits : 0;
    if (request.wantsHistogram) {
        result.histogram.emplace();
        result.histogram->lowest = format.valueAt(0);
        result.histogram->highest = format.valueAt(format.values - 1);
        result.histogram->binWidth = 1U << shift;
    }
    for (unsigned component = 0; component < format.map.count(); ++component) {
        const std::uint32_t *const counts = countsOf(component, format);
        ComponentStatistics statistics;
        statistics.component = format.map.component(component);
        double sum = 0; // Exact, because it is an integer of less than 53 bits.
        std::uint32_t minimum = format.values;
        std::uint32_t maximum = 0;
        for (std::uint32_t i = 0; i < format.values; ++i) {
            if (counts[i] == 0)
                continue;
            statistics.pixels += counts[i];
            sum += double(counts[i]) * i;
            minimum = std::min(minimum, i);
            maximum = i;
        }
        if (statistics.pixels == 0)
            continue;
        const auto pixels = static_cast<double>(statistics.pixels);
        const double mean = sum / pixels;
        double squares = 0;
        for (std::uint32_t i = minimum; i <= maximum; ++i)
            squares += counts[i] * (i - mean) * (i - mean);
        statistics.minimum = format.valueAt(minimum);
        statistics.maximum = format.valueAt(maximum);
        statistics.mean = mean - format.signBit;
        statistics.deviation = statistics.pixels > 1 ? std::sqrt(squares / (pixels - 1)) : 0;
        if (request.wantsHistogram) {
            ComponentHistogram histogram{statistics.component, {}, statistics.pixels};
            histogram.counts.resize(format.values >> shift);
            for (std::uint32_t i = minimum; i <= maximum; ++i)
                histogram.counts[i >> shift] += counts[i];
            const ClippingRange range = clippingRange(format.layout, component);
            const std::uint32_t *const end = counts + format.values;
            histogram.darkShare = sumOf(counts, counts + format.indexOf(range.lowest) + 1) / pixels;
            histogram.brightShare = sumOf(counts + format.indexOf(range.highest), end) / pixels;
            result.histogram->components.push_back(std::move(histogram));
        }
        if (request.wantsStatistics)
            result.statistics.push_back(statistics);
    }
}

void IntegerMeter::count(const RawImage &picture, const Region &area, const Format &format)
{
    const ComponentMap &map = format.map;
    m_counts.assign(std::size_t(2) * map.count() * format.values, 0);
    const std::size_t samples = std::size_t(area.width) * map.samplesPerPixel();
    m_words.resize(std::max(m_words.size(), samples));
    if (samples == 0)
        return;
    for (std::uint32_t y = area.y; y < area.y + area.height; ++y) {
        m_converter.toWords(picture, {area.x, y, area.width, 1}, m_words.data(), samples);
        for (std::size_t start = 0; start < std::min<std::size_t>(map.period(), samples); ++start) {
            const unsigned component
                = map.componentOf(y, std::size_t(area.x) * map.samplesPerPixel() + start);
            std::uint32_t *const counts = m_counts.data() + std::size_t(2) * component * format.values;
            countWords(m_words.data() + start, m_words.data() + samples, map.period(), format.values - 1,
                format.signBit, counts, counts + format.values);
        }
    }
}

/// Adds the two tables of a component and returns the result.
const std::uint32_t *IntegerMeter::countsOf(unsigned component, const Format &format)
{
    std::uint32_t *const counts = m_counts.data() + std::size_t(2) * component * format.values;
    for (std::uint32_t i = 0; i < format.values; ++i)
        counts[i] += counts[format.values + i];
    return counts;
}
