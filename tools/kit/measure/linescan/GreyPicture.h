#pragma once

#include "sdk/image/ImageConverter.h"
#include "sdk/image/RawImage.h"

#include <cstddef>
#include <cstdint>
#include <vector>

/// A picture of grey values that was reduced by the same factor in both directions, so shapes stay what they
/// are. Colours of a Bayer pattern are mixed; of other colour pictures, the second component is used (green).
struct GreyPicture
{
    int width = 0;
    int height = 0;
    int scale = 1; ///< Pixels of the camera's picture per pixel in each direction.
    float fullScale = 255; ///< The largest value that the format can have.
    std::vector<float> values; ///< Means of the camera's values.

    float at(int x, int y) const
    {
        return values[static_cast<std::size_t>(y) * static_cast<std::size_t>(width)
            + static_cast<std::size_t>(x)];
    }
};

/// Reduces a picture to at most about this number of pixels.
constexpr std::size_t workingPixels = 2000000;
GreyPicture greyPicture(ImageConverter &converter, const RawImage &picture, const Region &region);

/// Returns the threshold that separates dark from bright best: the one with the largest variance between the
/// two classes (Otsu, "A threshold selection method from gray-level histograms", IEEE Transactions on
/// Systems, Man, and Cybernetics 9, 1979).
struct Threshold
{
    float value = 0;
    float darkMean = 0;
    float brightMean = 0;
};
Threshold otsuThreshold(const std::vector<float> &values);
