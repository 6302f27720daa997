#pragma once

#include "sdk/image/ImageConverter.h"
#include "tools/kit/measure/run/Sentence.h"
#include "tools/kit/measure/taps/TapLayout.h"

#include <cstdint>
#include <vector>

/// The mean of several images, with what is known of each tap.
struct TapPicture
{
    struct Tap
    {
        double mean = 0; ///< Mean of all pixels and images, in units of the pixel values.
        double noise = 0; ///< Temporal standard deviation of a pixel.
        double clipped = 0; ///< Share of the pixel values that are the largest one.
        double black = 0; ///< Share of the pixel values that are 0.
    };

    std::uint32_t width = 0;
    std::uint32_t height = 0;
    bool isBayer = false;
    double maxValue = 0; ///< Largest pixel value of the format.
    std::size_t imageCount = 0;
    TapMap map;
    std::vector<float> mean; ///< Mean of each pixel, line by line.
    std::vector<Tap> taps;
    double moved = 0; ///< Share of the picture that has changed by more than its noise.

    float at(std::size_t x, std::size_t y) const { return mean[y * width + x]; }
};

/// Adds up images. The noise is measured as in EMVA Standard 1288 (temporal noise from the differences of two
/// images, of which half the variance belongs to each), so shading and the scene have no influence. The mean
/// of each difference is removed, so neither has light that flickers.
class TapStack
{
public:
    TapStack(const TapLayout &layout, const SensorPlace &place);

    /// Adds an image. Returns why it cannot be used; empty if it can.
    Sentence add(const RawImage &image);

    std::size_t count() const { return m_picture.imageCount; }

    /// Returns the result; call it after at least two images.
    TapPicture picture() const;

private:
    Sentence begin(const RawImage &image);
    void addValues();
    void addDifferences();
    std::vector<double> blockMeans() const;
    double movedShare() const;

    struct Sums
    {
        std::uint64_t values = 0;
        double value = 0;
        std::uint64_t clipped = 0;
        std::uint64_t black = 0;
        double variance = 0; // Sum over the pairs.
        std::size_t pairs = 0;
    };

    const TapLayout m_layout;
    const SensorPlace m_place;
    ImageConverter m_converter;
    std::uint32_t m_pixelFormat = 0;
    TapPicture m_picture; // The mean is still a sum.
    std::vector<Sums> m_sums;
    std::vector<std::uint16_t> m_words; // The newest image.
    std::vector<std::uint16_t> m_previous;
    std::vector<double> m_firstBlocks;
};
