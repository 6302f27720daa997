#pragma once

#include "sdk/image/RawImage.h"

#include <cstddef>
#include <cstdint>
#include <vector>

class ImageConverter;

/// What the pictures of a measurement have in common.
struct StatisticsLayout
{
    std::uint32_t offsetX = 0; ///< Position of the region on the sensor.
    std::uint32_t offsetY = 0; ///< 0 for a line scan sensor.
    std::uint32_t width = 0; ///< Pixels of a line.
    std::uint32_t height = 0; ///< Lines of the sensor's region; 1 for a line scan sensor.
    unsigned colorStep = 1; ///< Distance of pixels of the same colour: 1, or 2 for Bayer patterns.
    double maxValue = 0; ///< Highest value of the pixel format.

    bool isLineScan() const { return height == 1; }
};

/// Mean and variance of each pixel over the images of a set. Needs eight bytes per pixel, however many images
/// there are: B. P. Welford, "Note on a Method for Calculating Corrected Sums of Squares and Products",
/// Technometrics 4 (1962). All lines of a line scan picture are samples of the same pixels.
class PixelStatistics
{
public:
    PixelStatistics() = default;
    explicit PixelStatistics(const StatisticsLayout &layout);

    /// Adds a picture of the layout's width, unless it equals an earlier one: a sender that is too slow may
    /// repeat pictures, which say nothing new about the noise. The format has one integer of at most 16 bits
    /// per pixel.
    void add(const RawImage &picture, ImageConverter &converter);

    const StatisticsLayout &layout() const { return m_layout; }
    std::size_t pixels() const { return m_means.size(); }
    std::size_t images() const { return m_blockMeans.size(); } ///< Without repeated ones.
    std::size_t samples() const
    {
        return m_samples;
    } ///< Values of each pixel; more than images if line scan.

    /// Returns whether a pixel has enough values to compare its variance with that of others.
    bool showsNoise() const { return m_samples >= minNoiseSamples; }
    static constexpr std::size_t minNoiseSamples = 8;

    /// Returns the means of a line.
    const float *means(std::uint32_t y) const { return m_means.data() + lineStart(y); }
    /// Returns the sums of the squared deviations from the mean; 0 if all values of the pixel are equal.
    const float *squares(std::uint32_t y) const { return m_squares.data() + lineStart(y); }
    /// Returns by what squares() have to be multiplied to get the variance over the images.
    double varianceScale() const { return m_samples > 1 ? 1.0 / static_cast<double>(m_samples - 1) : 0; }

    /// The picture is divided into blocks of equal size, line by line; the mean of every block in each image.
    static constexpr std::uint32_t maxBlocks = 32; ///< In each direction.
    std::uint32_t blockColumns() const { return m_blockColumns; }
    std::uint32_t blockRows() const { return m_blockRows; }
    const std::vector<std::vector<float>> &blockMeans() const { return m_blockMeans; }

private:
    std::size_t lineStart(std::uint32_t y) const { return static_cast<std::size_t>(y) * m_layout.width; }
    void addLine(const std::uint16_t *values, std::uint32_t y, float share);
    void addToBlocks(const std::uint16_t *values, std::uint32_t y, std::vector<double> &sums) const;
    void finishBlocks(const std::vector<double> &sums, std::uint32_t pictureLines);

    StatisticsLayout m_layout;
    std::vector<float> m_means;
    std::vector<float> m_squares;
    std::size_t m_samples = 0;
    std::vector<std::size_t> m_hashes; // Hashes of the pictures that were added.
    std::uint32_t m_blockColumns = 0;
    std::uint32_t m_blockRows = 0;
    std::vector<std::vector<float>> m_blockMeans;
    std::vector<std::uint16_t> m_words; // A few lines of a picture.
};
