#include "tools/kit/measure/focus/FocusMeter.h"

#include "tools/kit/measure/focus/NoiseCurve.h"
#include "tools/kit/measure/focus/RegionSums.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double minBrightness = 0.02; // Share of the range of the pixel values.
constexpr double maxClippedRegion = 0.2;
constexpr double maxClippedPicture = 0.1;
// A region has edges if the brightness of its blocks of 8 x 8 pixels or that of its pixels changes.
constexpr double minCoarseEnergy = 5e-5; // Relative to the squared brightness.
constexpr double minEnergy = 2e-3;
constexpr double darkestShare = 0.001; // Share of the blocks that may be darker than the black level.
constexpr std::size_t minBlocksPerRegion = 2; // In each direction.

/// How the words of a pixel format are divided into colours.
struct Planes
{
    std::size_t count = 0; ///< 0 if the format cannot be measured.
    std::size_t step = 1; ///< 2 for a mosaic of colour filters: every second pixel has the same colour.
};

Planes planesOf(const PixelFormat &format)
{
    switch (format.kind) {
    case PixelKind::Bayer:
        return {4, 2};
    case PixelKind::Rgb:
        return {3, 1};
    case PixelKind::Mono:
    case PixelKind::Yuv: // The luma comes first.
        return {1, 1};
    default:
        return {};
    }
}

/// Returns the share of the blocks' brightness below which nothing lies: no black level is higher.
double darkestBrightness(const FocusBlocks &blocks)
{
    std::vector<double> means;
    for (std::size_t plane = 0; plane < blocks.planes(); ++plane)
        for (std::size_t row = 0; row < blocks.rows(); ++row)
            for (std::size_t column = 0; column < blocks.columns(); ++column)
                means.push_back(blocks.at(plane, column, row).mean());
    const auto index = static_cast<std::ptrdiff_t>(darkestShare * static_cast<double>(means.size()));
    std::nth_element(means.begin(), means.begin() + index, means.end());
    return means[static_cast<std::size_t>(index)];
}

NoiseCurve noiseCurve(const FocusBlocks &blocks, std::size_t plane)
{
    constexpr double squares = NoiseCurve::squaresPerBlock;
    std::vector<NoiseCurve::Block> usable;
    for (std::size_t row = 0; row < blocks.rows(); ++row) {
        for (std::size_t column = 0; column < blocks.columns(); ++column) {
            const FocusBlock &block = blocks.at(plane, column, row);
            if (block.clipped == 0)
                usable.push_back({block.mean(), block.detail / (4 * squares)});
        }
    }
    return NoiseCurve(std::move(usable));
}

/// Adds up the blocks of each region.
class RegionSummation
{
public:
    RegionSummation(const FocusBlocks &blocks, const FocusGrid &grid)
        : m_blocks(blocks), m_grid(grid), m_sums(grid.size())
    { }

    const std::vector<RegionSums> &run()
    {
        for (std::size_t plane = 0; plane < m_blocks.planes(); ++plane)
            m_curves.push_back(noiseCurve(m_blocks, plane));
        for (std::size_t row = 0; row < m_blocks.rows(); ++row)
            for (std::size_t column = 0; column < m_blocks.columns(); ++column)
                addBlock(column, row);
        return m_sums;
    }

private:
    RegionSums &sumsAt(std::size_t column, std::size_t row)
    {
        const auto columns = static_cast<std::size_t>(m_grid.columns);
        const auto rows = static_cast<std::size_t>(m_grid.rows);
        return m_sums[row * rows / m_blocks.rows() * columns + column * columns / m_blocks.columns()];
    }

    double brightness(std::size_t column, std::size_t row) const
    {
        double sum = 0;
        for (std::size_t plane = 0; plane < m_blocks.planes(); ++plane)
            sum += m_blocks.at(plane, column, row).sum;
        return sum / static_cast<double>(FocusBlock::pixels * m_blocks.planes());
    }

    void addBlock(std::size_t column, std::size_t row)
    {
        RegionSums &sums = sumsAt(column, row);
        double energy = 0;
        for (std::size_t plane = 0; plane < m_blocks.planes(); ++plane) {
            const FocusBlock &block = m_blocks.at(plane, column, row);
            const double noise = m_curves[plane].variance(block.mean());
            sums.addBlock(plane, block, noise);
            energy += std::max(0.0, block.across + block.down - 4 * noise * FocusBlock::pixels);
        }
        sums.addPlace(static_cast<double>(column) + 0.5, static_cast<double>(row) + 0.5, energy);
        if (column > 1 && &sumsAt(column - 2, row) == &sums)
            sums.addCoarseStep(
                brightness(column - 2, row), brightness(column - 1, row), brightness(column, row));
        if (row > 1 && &sumsAt(column, row - 2) == &sums)
            sums.addCoarseStep(
                brightness(column, row - 2), brightness(column, row - 1), brightness(column, row));
    }

    const FocusBlocks &m_blocks;
    const FocusGrid m_grid;
    std::vector<NoiseCurve> m_curves; // One for each colour.
    std::vector<RegionSums> m_sums;
};

/// What turns sums of pixel values into the numbers of a measurement.
struct Scale
{
    double blackLevel; // The black level as a pixel value.
    double range;
    bool isLineScan;
    double blockPixels; // Pixels of the picture per block in each direction.

    double sharpness(const RegionSums &sums) const
    {
        const double squared = sums.squaredBrightness(blackLevel);
        return squared > 0 ? sums.energy(isLineScan) / squared : 0;
    }
    double brightness(const RegionSums &sums) const { return (sums.mean() - blackLevel) / range; }
};

RegionFocus::State stateOf(const RegionSums &sums, const Scale &scale)
{
    if (scale.brightness(sums) < minBrightness)
        return RegionFocus::State::TooDark;
    if (sums.clippedShare() > maxClippedRegion)
        return RegionFocus::State::Clipped;
    const double brightness = sums.mean() - scale.blackLevel;
    const bool hasEdges = sums.coarseEnergy() * sums.spread() > minCoarseEnergy * brightness * brightness
        || scale.sharpness(sums) * sums.spread()
            > minEnergy + 0.2 * sums.noise() / sums.squaredBrightness(scale.blackLevel);
    return hasEdges ? RegionFocus::State::Usable : RegionFocus::State::NoEdges;
}

RegionFocus regionFocus(const RegionSums &sums, const Scale &scale, const Region &area)
{
    RegionFocus region;
    region.area = area;
    region.sharpness = scale.sharpness(sums);
    region.brightness = scale.brightness(sums);
    region.clippedShare = sums.clippedShare();
    const auto [column, row] = sums.place(
        {(area.x + area.width / 2.0) / scale.blockPixels, (area.y + area.height / 2.0) / scale.blockPixels});
    region.centerX = column * scale.blockPixels;
    region.centerY = row * scale.blockPixels;
    region.state = stateOf(sums, scale);
    return region;
}

/// Returns the pixels of a region of the grid. Pixels at the edges that belong to no block are included.
Region areaOf(std::size_t column, std::size_t row, const FocusMeasurement &picture)
{
    const auto part = [](std::uint32_t length, std::size_t index, int count) {
        return static_cast<std::uint32_t>(length * index / static_cast<std::size_t>(count));
    };
    const std::uint32_t left = part(picture.width, column, picture.grid.columns);
    const std::uint32_t top = part(picture.height, row, picture.grid.rows);
    return {left, top, part(picture.width, column + 1, picture.grid.columns) - left,
        part(picture.height, row + 1, picture.grid.rows) - top};
}

Sentence problemOf(const FocusMeasurement &picture)
{
    if (picture.brightness < minBrightness)
        return {QT_TRANSLATE_NOOP("Sentence",
            "The picture is too dark. Remove the lens cap, open the aperture, add light or lengthen the "
            "exposure time.")};
    if (picture.clippedShare > maxClippedPicture)
        return {QT_TRANSLATE_NOOP("Sentence",
                    "%1 % of the pixels are overexposed. Close the aperture or shorten the exposure time."),
            {SentenceNumber{picture.clippedShare * 100, 0}}};
    const auto isUsable = [](const RegionFocus &region) { return region.isUsable(); };
    if (std::none_of(picture.regions.begin(), picture.regions.end(), isUsable))
        return {QT_TRANSLATE_NOOP("Sentence",
            "The picture has no edges. Point the camera at something with structure, for example a printed "
            "page, or turn the lens if the picture is blurred.")};
    return {};
}
} // namespace

Sentence FocusMeter::measure(const RawImage &picture, const FocusOptions &options, FocusMeasurement &result)
{
    const PixelFormat *const format = findPixelFormat(picture.pixelFormat);
    const Planes planes = format ? planesOf(*format) : Planes{};
    if (planes.count == 0)
        return {QT_TRANSLATE_NOOP("Sentence",
            "Pictures of this pixel format cannot be measured. Choose a Mono, Bayer, RGB or YUV format.")};
    const auto maxValue = static_cast<std::uint16_t>((1U << std::min<unsigned>(format->depth, 16)) - 1);
    m_blocks.begin(planes.count, picture.width / planes.step, picture.height / planes.step, maxValue);
    if (m_blocks.columns() < minBlocksPerRegion * static_cast<std::size_t>(options.grid.columns)
        || m_blocks.rows() < minBlocksPerRegion * static_cast<std::size_t>(options.grid.rows))
        return {QT_TRANSLATE_NOOP("Sentence",
            "The picture is too small for so many regions. Choose a larger Width and Height, or fewer "
            "regions.")};
    readBlocks(picture, planes.step);

    result = {};
    result.grid = options.grid;
    result.width = picture.width;
    result.height = picture.height;
    const Scale scale{std::min(options.blackLevel * maxValue, darkestBrightness(m_blocks)),
        static_cast<double>(maxValue), options.isLineScan,
        static_cast<double>(FocusBlock::size * planes.step)};
    RegionSums whole;
    std::size_t index = 0;
    RegionSummation summation(m_blocks, options.grid);
    for (const RegionSums &sums : summation.run()) {
        const auto columns = static_cast<std::size_t>(options.grid.columns);
        const Region area = areaOf(index % columns, index / columns, result);
        ++index;
        result.regions.push_back(regionFocus(sums, scale, area));
        whole.add(sums);
    }
    result.sharpness = scale.sharpness(whole);
    result.brightness = scale.brightness(whole);
    result.clippedShare = whole.clippedShare();
    if (const double squared = whole.squaredBrightness(scale.blackLevel); squared > 0)
        result.noise = std::sqrt(whole.noise() / squared);
    result.isExposed = result.brightness >= minBrightness && result.clippedShare <= maxClippedPicture;
    result.problem = problemOf(result);
    return {};
}

void FocusMeter::readBlocks(const RawImage &picture, std::size_t step)
{
    const unsigned channels = ImageConverter::wordChannels(picture.pixelFormat);
    const std::size_t stride = std::size_t{picture.width} * channels;
    const std::size_t lines = (FocusBlock::size + 1) * step;
    m_words.resize(stride * lines);
    for (std::size_t row = 0; row < m_blocks.rows(); ++row) {
        const Region stripe{0, static_cast<std::uint32_t>(row * FocusBlock::size * step), picture.width,
            static_cast<std::uint32_t>(lines)};
        m_converter.toWords(picture, stripe, m_words.data(), stride);
        for (std::size_t plane = 0; plane < m_blocks.planes(); ++plane) {
            const std::size_t offset = step == 2 ? plane / 2 * stride + plane % 2 : plane;
            m_blocks.computeRow(plane, row, m_words.data(), {offset, channels * step, stride * step});
        }
    }
}
