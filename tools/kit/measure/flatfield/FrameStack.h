#pragma once

#include "sdk/image/ImageConverter.h"
#include "tools/kit/measure/flatfield/MeanImage.h"
#include "tools/kit/measure/run/Sentence.h"

#include <array>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

/// Adds images up. The memory does not depend on their number: one sum for each pixel. The temporal variance
/// is the mean of the pixels' variances over the images, as EMVA 1288 release 4.0 measures it on a stack of
/// images: s² = sum of (y - mean of the pixel)² / (L - 1). The squares are only summed for all pixels
/// together. The lines of a line scan picture are added to one line.
class FrameStack
{
public:
    /// The picture is divided into so many parts in both directions, to notice changes from image to image.
    static constexpr std::uint32_t parts = 8;
    using PartLevels = std::array<float, std::size_t(parts) * parts>;

    explicit FrameStack(bool isLineScan);

    /// Corrects the pictures that follow before they are added.
    void setCorrection(std::shared_ptr<const Correction> correction) { m_correction = std::move(correction); }

    /// Adds the picture. Fails with a sentence if its format has no single value per pixel, or if its size
    /// differs from the first one. Works for Mono and Bayer formats of 8 to 16 bits.
    Sentence add(const RawImage &picture, std::uint32_t offsetX, std::uint32_t offsetY);

    std::size_t count() const { return m_partLevels.size(); }
    bool isEmpty() const { return m_partLevels.empty(); }
    std::uint32_t pixelFormat() const { return m_pixelFormat; }
    const ChannelMosaic &mosaic() const { return m_mean.mosaic; }
    std::uint32_t offsetX() const { return m_mean.offsetX; }
    std::uint32_t offsetY() const { return m_mean.offsetY; }
    double maxValue() const { return m_mean.maxValue(); }

    MeanImage mean() const;

    double level(std::size_t channel) const; ///< Mean of the values of a channel.
    double brightestLevel() const; ///< The highest level of a channel.
    double clippedShare() const; ///< Share of the values that are the highest possible one.
    double blackShare() const; ///< Share of the values that are 0.

    /// Mean of each part in each image.
    const std::vector<PartLevels> &partLevels() const { return m_partLevels; }
    double valuesPerPart() const; ///< Values that the mean of a part has.

    /// Temporal variance of a value, averaged over the channels. The variance of the images' means, which is
    /// that of the light, is subtracted, as EMVA 1288 does for two images.
    double temporalVariance() const;

private:
    Sentence begin(const RawImage &picture, std::uint32_t offsetX, std::uint32_t offsetY);
    void addLine(const std::uint16_t *words, std::uint32_t y, PartLevels &levels);
    void endImage();
    void divideByCounts(PartLevels &levels) const;
    double samplesPerPixel() const;
    double variance(std::size_t channel) const;

    struct Channel
    {
        double sum = 0;
        double squares = 0;
        double count = 0; ///< Values.
        double imageSum = 0; ///< Sum of the values of the present image.
        double squaredMeans = 0; ///< Sum of the squares of the images' means.
    };

    const bool m_isLineScan;
    ImageConverter m_converter;
    std::shared_ptr<const Correction> m_correction; // Null: pictures are added as they are.
    MeanImage m_mean; // Without values.
    std::uint32_t m_pixelFormat = 0;
    std::uint32_t m_lines = 0; // Lines of a picture.
    std::vector<std::uint32_t> m_sums; // For each pixel; only for area scan sensors.
    std::vector<double> m_lineSums; // The same for line scan sensors, whose sums are larger.
    std::vector<Channel> m_channels;
    std::vector<PartLevels> m_partLevels;
    double m_clipped = 0;
    double m_black = 0;
};

/// Returns true for formats that can be corrected: one unsigned value of 8 to 16 bits per pixel.
bool isFlatFieldFormat(std::uint32_t pixelFormat);
