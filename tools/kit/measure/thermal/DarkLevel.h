#pragma once

#include "sdk/image/ImageConverter.h"
#include "sdk/image/RawImage.h"
#include "tools/kit/measure/run/Sentence.h"

#include <cstdint>
#include <vector>

/// The brightness of one picture without light, in pixel values of the picture's format.
struct DarkLevel
{
    double mean = 0; ///< Mean of all pixels: the estimate of mu.d in EMVA 1288 4.0, Linear, section 6.
    double spread = 0; ///< Standard deviation of the pixels.
    double standardError = 0; ///< Standard error of the mean, from the spread.
    double zeroShare = 0; ///< Share of the pixels that are 0.
};

/// Measures dark pictures. One object serves one thread.
class DarkMeter
{
public:
    /// Returns why the picture is no dark picture or cannot be used; empty if `level` was measured. A picture
    /// is dark if its mean is below 25 % of the range, and if the means of its parts differ by less than 5 %
    /// of the range.
    Sentence measure(const RawImage &picture, DarkLevel &level);

    /// Returns a sentence if this level cannot follow a temperature well, because the steps of the format are
    /// coarser than the noise, which hides smaller changes; otherwise an empty one.
    static Sentence hint(const DarkLevel &level);

private:
    struct Sums
    {
        std::uint64_t values = 0;
        std::uint64_t squares = 0;
        std::uint64_t zeros = 0;
    };

    Sums addLines(const RawImage &picture, std::uint32_t firstLine, std::uint32_t lines, unsigned channels);

    ImageConverter m_converter;
    std::vector<std::uint16_t> m_words;
    std::vector<double> m_partMeans;
};
