#include "tools/kit/measure/taps/TapBorders.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <numeric>
#include <tuple>

namespace {

constexpr std::size_t linesPerBlock = 8;
constexpr std::size_t maxStrip = 32; // Pixels.
constexpr std::size_t minPoints = 4; // For a straight line.
constexpr std::size_t tileCycles = 16; // How often each of the interleaved taps occurs in a tile.

/// The picture, or the picture turned so that borders between lines become borders between columns.
class TurnedPicture
{
public:
    TurnedPicture(const TapPicture &picture, bool isTurned) : m_picture(picture), m_isTurned(isTurned) { }

    float at(std::size_t x, std::size_t y) const
    {
        return m_isTurned ? m_picture.at(y, x) : m_picture.at(x, y);
    }
    unsigned tapAt(std::size_t x, std::size_t y) const
    {
        return m_isTurned ? m_picture.map.tapAt(y, x) : m_picture.map.tapAt(x, y);
    }
    std::size_t width() const { return m_isTurned ? m_picture.height : m_picture.width; }
    std::size_t height() const { return m_isTurned ? m_picture.width : m_picture.height; }
    const TapMap::Direction &columns() const
    {
        return m_isTurned ? m_picture.map.lines() : m_picture.map.columns();
    }
    const TapMap::Direction &lines() const
    {
        return m_isTurned ? m_picture.map.columns() : m_picture.map.lines();
    }
    /// Distance of columns that belong to one tap of a zone and have one colour.
    std::size_t columnPeriod() const { return period(m_isTurned ? layout().tapsY : layout().tapsX); }
    std::size_t linePeriod() const { return period(m_isTurned ? layout().tapsX : layout().tapsY); }
    std::size_t interleaved() const { return m_isTurned ? layout().tapsY : layout().tapsX; }
    TapStep::Kind kind() const { return m_isTurned ? TapStep::Kind::Lines : TapStep::Kind::Columns; }

private:
    const TapLayout &layout() const { return m_picture.map.layout(); }
    std::size_t period(unsigned taps) const { return std::lcm<std::size_t>(taps, m_picture.isBayer ? 2 : 1); }

    const TapPicture &m_picture;
    const bool m_isTurned;
};

/// What the blocks of one step say.
struct Samples
{
    std::vector<double> differences;
    std::vector<double> ratios;

    void add(double first, double second, double darkLevel)
    {
        differences.push_back(second - first);
        if (first > darkLevel && second > darkLevel)
            ratios.push_back(std::log((second - darkLevel) / (first - darkLevel)));
    }
};
using StepKey = std::tuple<TapStep::Kind, std::size_t, unsigned, unsigned>; // Kind, position, first, second.
using AllSamples = std::map<StepKey, Samples>;

double middleOf(std::vector<double> &values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

struct Estimate
{
    double value = 0;
    double error = 0;
};

/// Returns the median and its standard error: 1.2533 standard deviations by the root of the number, with the
/// standard deviation as 1.4826 median absolute deviations.
Estimate robustEstimate(std::vector<double> values)
{
    if (values.empty())
        return {0, HUGE_VAL};
    const double median = middleOf(values);
    for (double &value : values)
        value = std::abs(value - median);
    return {median, 1.2533 * 1.4826 * middleOf(values) / std::sqrt(static_cast<double>(values.size()))};
}

struct Points
{
    std::vector<double> x;
    std::vector<double> y;
};

/// A straight line: y = mean + slope * (x - center).
struct Line
{
    double center = 0;
    double mean = 0;
    double slope = 0;

    double at(double x) const { return mean + slope * (x - center); }
};

/// Returns the straight line through the points (least squares).
Line fittedLine(const Points &points)
{
    const auto count = static_cast<double>(points.x.size());
    Line line;
    line.center = std::accumulate(points.x.begin(), points.x.end(), 0.0) / count;
    line.mean = std::accumulate(points.y.begin(), points.y.end(), 0.0) / count;
    double products = 0;
    double squares = 0;
    for (std::size_t i = 0; i < points.x.size(); ++i) {
        products += (points.x[i] - line.center) * (points.y[i] - line.mean);
        squares += (points.x[i] - line.center) * (points.x[i] - line.center);
    }
    line.slope = squares > 0 ? products / squares : 0;
    return line;
}

/// Returns the points without those whose distance from their median is extreme, such as dead columns.
Points withoutOutliers(const Points &points)
{
    std::vector<double> values = points.y;
    const double median = middleOf(values);
    for (double &value : values)
        value = std::abs(value - median);
    const double limit = 8 * 1.4826 * middleOf(values) + 0.5;
    Points kept;
    for (std::size_t i = 0; i < points.x.size(); ++i) {
        if (std::abs(points.y[i] - median) > limit)
            continue;
        kept.x.push_back(points.x[i]);
        kept.y.push_back(points.y[i]);
    }
    return kept;
}

/// Returns where the straight line through the points is at `x`.
double extended(const Points &points, double x)
{
    return fittedLine(withoutOutliers(points)).at(x);
}

/// Returns the median of a column over the lines of a block.
double columnValue(const TurnedPicture &picture, std::size_t x, const std::vector<std::size_t> &lines)
{
    std::vector<double> values;
    for (const std::size_t y : lines)
        values.push_back(picture.at(x, y));
    return middleOf(values);
}

/// Returns the columns of the strip on one side of a border that belong to a class of columns.
Points stripPoints(const TurnedPicture &picture, std::size_t begin, std::size_t end, std::size_t columnClass,
    const std::vector<std::size_t> &lines)
{
    Points points;
    const std::size_t period = picture.columnPeriod();
    for (std::size_t x = begin; x < end; ++x) {
        if (x % period != columnClass)
            continue;
        points.x.push_back(static_cast<double>(x));
        points.y.push_back(columnValue(picture, x, lines));
    }
    return points;
}

/// Returns the lines of each block: neighbours of one zone that belong to one tap and have one colour.
std::vector<std::vector<std::size_t>> lineBlocks(const TurnedPicture &picture)
{
    std::vector<std::vector<std::size_t>> blocks;
    const std::size_t period = picture.linePeriod();
    const auto &zones = picture.lines().zones;
    const std::size_t count = std::min(linesPerBlock, std::max<std::size_t>(picture.height() / period, 1));
    for (std::size_t start = 0; start + count * period <= picture.height(); start += count * period) {
        if (zones[start] != zones[start + count * period - 1])
            continue;
        for (std::size_t lineClass = 0; lineClass < period; ++lineClass) {
            std::vector<std::size_t> lines;
            for (std::size_t i = 0; i < count; ++i)
                lines.push_back(start + lineClass + i * period);
            blocks.push_back(std::move(lines));
        }
    }
    return blocks;
}

void measureBorder(const TurnedPicture &picture, std::size_t border, double darkLevel, AllSamples &samples)
{
    const auto &zones = picture.columns().zones;
    const auto zoneSize = [&zones](std::size_t x) {
        return static_cast<std::size_t>(std::count(zones.begin(), zones.end(), zones[x]));
    };
    const std::size_t strip
        = std::min({maxStrip * picture.columnPeriod(), zoneSize(border - 1), zoneSize(border)});
    for (const std::vector<std::size_t> &lines : lineBlocks(picture)) {
        for (std::size_t columnClass = 0; columnClass < picture.columnPeriod(); ++columnClass) {
            const Points first = stripPoints(picture, border - strip, border, columnClass, lines);
            const Points second = stripPoints(picture, border, border + strip, columnClass, lines);
            if (first.x.size() < minPoints || second.x.size() < minPoints)
                continue;
            const auto tapOf
                = [&](double x) { return picture.tapAt(static_cast<std::size_t>(x), lines.front()); };
            const double middle = static_cast<double>(border) - 0.5;
            samples[{picture.kind(), border, tapOf(first.x.back()), tapOf(second.x.front())}].add(
                extended(first, middle), extended(second, middle), darkLevel);
        }
    }
}

/// Compares the taps that read the columns of a zone in turn, in one tile. The slope of the tile is removed.
void measureTile(const TurnedPicture &picture, std::size_t start, const std::vector<std::size_t> &lines,
    double darkLevel, AllSamples &samples)
{
    const std::size_t taps = picture.interleaved();
    const std::size_t half = taps * tileCycles / 2;
    std::vector<double> means(taps, 0);
    std::array<double, 2> halves{};
    for (std::size_t i = 0; i < 2 * half; ++i) {
        const double value = columnValue(picture, start + i, lines);
        means[i % taps] += value / static_cast<double>(tileCycles);
        halves.at(i / half) += value / static_cast<double>(half);
    }
    const double slope = (halves[1] - halves[0]) / static_cast<double>(half);
    for (std::size_t i = 1; i < taps; ++i)
        samples[{TapStep::Kind::Interleaved, 0, picture.tapAt(start, lines.front()),
                    picture.tapAt(start + i, lines.front())}]
            .add(means[0], means[i] - slope * static_cast<double>(i), darkLevel);
}

void measureInterleaved(const TurnedPicture &picture, double darkLevel, AllSamples &samples)
{
    const std::size_t tile = picture.interleaved() * tileCycles;
    const auto &zones = picture.columns().zones;
    if (picture.interleaved() < 2 || zones.size() < tile)
        return;
    const std::vector<std::vector<std::size_t>> blocks = lineBlocks(picture);
    for (std::size_t start = 0; start + tile <= zones.size();) {
        const bool isFirstTap = picture.columns().taps[start] % picture.interleaved() == 0;
        if (!isFirstTap || zones[start] != zones[start + tile - 1]) {
            ++start;
            continue;
        }
        for (const std::vector<std::size_t> &lines : blocks)
            measureTile(picture, start, lines, darkLevel, samples);
        start += tile;
    }
}

} // namespace

std::vector<TapStep> measureSteps(const TapPicture &picture, double darkLevel)
{
    AllSamples samples;
    for (const bool isTurned : {false, true}) {
        const TurnedPicture turned(picture, isTurned);
        for (const std::size_t border : zoneBorders(turned.columns()))
            measureBorder(turned, border, darkLevel, samples);
        measureInterleaved(turned, darkLevel, samples);
    }
    std::vector<TapStep> steps;
    for (const auto &[key, values] : samples) {
        const Estimate difference = robustEstimate(values.differences);
        const Estimate ratio = robustEstimate(values.ratios);
        steps.push_back({std::get<2>(key), std::get<3>(key), std::get<0>(key), std::get<1>(key),
            difference.value, ratio.value, difference.error, ratio.error});
    }
    return steps;
}
