#include "tools/kit/measure/defects/PixelStatistics.h"

#include "sdk/image/ImageConverter.h"

#include <algorithm>
#include <string_view>

namespace {
constexpr std::uint32_t bandLines = 16; // Lines that are unpacked at once; they fit into the cache.

std::uint32_t blockStart(std::uint32_t block, std::uint32_t blocks, std::uint32_t size)
{
    return static_cast<std::uint32_t>(static_cast<std::uint64_t>(block) * size / blocks);
}

std::size_t hashOf(const RawImage &picture)
{
    const std::string_view bytes(reinterpret_cast<const char *>(picture.data), picture.size);
    return std::hash<std::string_view>{}(bytes);
}
} // namespace

PixelStatistics::PixelStatistics(const StatisticsLayout &layout)
    : m_layout(layout),
      m_means(static_cast<std::size_t>(layout.width) * layout.height),
      m_squares(m_means.size()),
      m_blockColumns(std::min(maxBlocks, layout.width)),
      m_blockRows(std::min(maxBlocks, layout.height)),
      m_words(static_cast<std::size_t>(layout.width) * bandLines)
{ }

void PixelStatistics::add(const RawImage &picture, ImageConverter &converter)
{
    const std::size_t hash = hashOf(picture);
    if (std::find(m_hashes.begin(), m_hashes.end(), hash) != m_hashes.end())
        return;
    m_hashes.push_back(hash);
    const bool isLineScan = m_layout.isLineScan();
    std::vector<double> sums(static_cast<std::size_t>(m_blockColumns) * m_blockRows);
    if (!isLineScan)
        ++m_samples;
    const std::uint32_t lines = isLineScan ? picture.height : std::min(picture.height, m_layout.height);
    for (std::uint32_t first = 0; first < lines; first += bandLines) {
        const std::uint32_t count = std::min(bandLines, lines - first);
        converter.toWords(picture, {0, first, m_layout.width, count}, m_words.data(), m_layout.width);
        for (std::uint32_t i = 0; i < count; ++i) {
            const std::uint16_t *const values = m_words.data() + lineStart(i);
            const std::uint32_t y = isLineScan ? 0 : first + i;
            if (isLineScan)
                ++m_samples;
            addLine(values, y, 1 / static_cast<float>(m_samples));
            addToBlocks(values, y, sums);
        }
    }
    finishBlocks(sums, lines);
}

void PixelStatistics::addLine(const std::uint16_t *values, std::uint32_t y, float share)
{
    float *const means = m_means.data() + lineStart(y);
    float *const squares = m_squares.data() + lineStart(y);
    for (std::uint32_t x = 0; x < m_layout.width; ++x) {
        const auto value = static_cast<float>(values[x]);
        const float difference = value - means[x];
        means[x] += difference * share;
        squares[x] += difference * (value - means[x]);
    }
}

void PixelStatistics::addToBlocks(
    const std::uint16_t *values, std::uint32_t y, std::vector<double> &sums) const
{
    const std::uint32_t row
        = static_cast<std::uint32_t>((static_cast<std::uint64_t>(y + 1) * m_blockRows - 1) / m_layout.height);
    for (std::uint32_t column = 0; column < m_blockColumns; ++column) {
        std::uint64_t sum = 0;
        const std::uint32_t end = blockStart(column + 1, m_blockColumns, m_layout.width);
        for (std::uint32_t x = blockStart(column, m_blockColumns, m_layout.width); x < end; ++x)
            sum += values[x];
        sums[static_cast<std::size_t>(row) * m_blockColumns + column] += static_cast<double>(sum);
    }
}

void PixelStatistics::finishBlocks(const std::vector<double> &sums, std::uint32_t pictureLines)
{
    std::vector<float> means;
    means.reserve(sums.size());
    for (std::uint32_t row = 0; row < m_blockRows; ++row) {
        const std::uint32_t lines = m_layout.isLineScan() ? pictureLines
                                                          : blockStart(row + 1, m_blockRows, m_layout.height)
                - blockStart(row, m_blockRows, m_layout.height);
        for (std::uint32_t column = 0; column < m_blockColumns; ++column) {
            const double columns = blockStart(column + 1, m_blockColumns, m_layout.width)
                - blockStart(column, m_blockColumns, m_layout.width);
            means.push_back(static_cast<float>(sums[means.size()] / (columns * lines)));
        }
    }
    m_blockMeans.push_back(std::move(means));
}
