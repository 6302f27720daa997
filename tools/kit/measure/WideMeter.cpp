#include "tools/kit/measure/WideMeter.h"

#include "sdk/image/WideNumbers.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr std::size_t binCount = 4096;

/// Reads the numbers of a picture.
class WideReader
{
public:
    WideReader(const RawImage &picture, const PixelLayout &layout)
        : m_picture(picture), m_layout(layout), m_geometry(picture, layout)
    { }

    /// Writes the components of `count` pixels of a line alternately.
    void read(std::uint32_t y, std::uint32_t x, std::uint32_t count, double *output) const;

    /// Returns the range of the format, or of the floating-point numbers in the picture.
    FloatRange range() const;

private:
    double numberAt(const std::uint8_t *bytes) const;

    const RawImage &m_picture;
    const PixelLayout &m_layout;
    PictureGeometry m_geometry;
};

void WideReader::read(std::uint32_t y, std::uint32_t x, std::uint32_t count, double *output) const
{
    const std::size_t components = m_layout.format.components;
    const std::size_t size = m_layout.format.depth / 8U;
    const bool isPlanar = m_layout.planes == Planes::Planar;
    for (std::size_t component = 0; component < components; ++component) {
        const LinePlace place = m_geometry.line(isPlanar ? static_cast<unsigned>(component) : 0, y);
        const std::size_t step = isPlanar ? size : size * components;
        const std::uint8_t *bytes
            = m_picture.data + place.offset + x * step + (isPlanar ? 0 : component * size);
        for (std::size_t i = 0; i < count; ++i, bytes += step)
            output[i * components + component] = numberAt(bytes);
    }
}

double WideReader::numberAt(const std::uint8_t *bytes) const
{
    const unsigned depth = m_layout.format.depth;
    if (m_layout.number == Number::Float)
        return floatAt(bytes, depth, m_picture.isBigEndian);
    const bool isSigned = m_layout.number == Number::Signed;
    if (depth == 32) {
        const auto number = integerAt<std::uint32_t>(bytes, m_picture.isBigEndian);
        return isSigned ? static_cast<double>(static_cast<std::int32_t>(number)) : number;
    }
    const auto number = integerAt<std::uint64_t>(bytes, m_picture.isBigEndian);
    return isSigned ? static_cast<double>(static_cast<std::int64_t>(number)) : static_cast<double>(number);
}

FloatRange WideReader::range() const
{
    const int depth = m_layout.format.depth;
    if (m_layout.number == Number::Unsigned)
        return {0, std::ldexp(1, depth) - 1};
    if (m_layout.number == Number::Signed)
        return {-std::ldexp(1, depth - 1), std::ldexp(1, depth - 1) - 1};
    constexpr double infinity = std::numeric_limits<double>::infinity();
    FloatRange whole{infinity, -infinity};
    for (const FloatRange &range : findFloatRanges(m_picture, m_layout, m_geometry)) {
        whole.lowest = std::min(whole.lowest, range.lowest);
        whole.highest = std::max(whole.highest, range.highest);
    }
    return whole.lowest <= whole.highest ? whole : FloatRange{0, 0};
}

} // namespace

/// What is known about one component so far.
struct WideMeter::Total
{
    ComponentHistogram histogram;
    ComponentStatistics statistics;
    double squares = 0; ///< Sum of the squared differences from the mean.
    std::uint64_t dark = 0;
    std::uint64_t bright = 0;

    /// Adds a number to mean and deviation by Welford's method, which does not lose small differences of
    /// large numbers.
    void add(double number, const FloatRange &range);
};

void WideMeter::Total::add(double number, const FloatRange &range)
{
    if (!std::isfinite(number))
        return;
    ComponentStatistics &s = statistics;
    s.minimum = s.pixels == 0 ? number : std::min(s.minimum, number);
    s.maximum = s.pixels == 0 ? number : std::max(s.maximum, number);
    ++s.pixels;
    const double difference = number - s.mean;
    s.mean += difference / static_cast<double>(s.pixels);
    squares += difference * (number - s.mean);
    dark += number <= range.lowest ? 1 : 0;
    bright += number >= range.highest ? 1 : 0;
    const auto bin = static_cast<std::size_t>(range.share(number) * binCount);
    ++histogram.counts[std::min(bin, binCount - 1)];
}

void WideMeter::measure(
    const RawImage &picture, const Region &area, const MeasureRequest &request, Measurements &result)
{
    const PixelLayout &layout = findPixelLayout(picture.pixelFormat);
    const ComponentMap map(layout);
    const WideReader reader(picture, layout);
    const FloatRange range = reader.range();
    std::vector<Total> totals(map.count());
    for (unsigned i = 0; i < map.count(); ++i) {
        totals[i].histogram.component = totals[i].statistics.component = map.component(i);
        totals[i].histogram.counts.resize(binCount);
    }

    const std::size_t samples = std::size_t(area.width) * map.samplesPerPixel();
    m_numbers.resize(std::max(m_numbers.size(), samples));
    for (std::uint32_t y = area.y; y < area.y + area.height; ++y) {
        reader.read(y, area.x, area.width, m_numbers.data());
        for (std::size_t i = 0; i < samples; ++i)
            totals[i % map.period()].add(m_numbers[i], range);
    }

    if (request.wantsHistogram)
        result.histogram = Histogram{
            range.lowest, range.highest, (range.highest / binCount - range.lowest / binCount), {}};
    for (Total &total : totals) {
        ComponentStatistics &statistics = total.statistics;
        if (statistics.pixels == 0)
            continue;
        const auto pixels = static_cast<double>(statistics.pixels);
        statistics.deviation = statistics.pixels > 1 ? std::sqrt(total.squares / (pixels - 1)) : 0;
        if (request.wantsStatistics)
            result.statistics.push_back(statistics);
        if (!request.wantsHistogram)
            continue;
        total.histogram.pixels = statistics.pixels;
        if (layout.number != Number::Float) {
            total.histogram.darkShare = static_cast<double>(total.dark) / pixels;
            total.histogram.brightShare = static_cast<double>(total.bright) / pixels;
        }
        result.histogram->components.push_back(std::move(total.histogram));
    }
}
