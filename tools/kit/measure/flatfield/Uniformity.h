#pragma once

#include "tools/kit/measure/flatfield/MeanImage.h"

#include <optional>
#include <string>
#include <vector>

/// The non-uniformity of one channel. Values have the unit of the pixel format (DN).
struct ChannelUniformity
{
    std::string name; ///< "Mono", "R", "Gr", "Gb" or "B".
    double darkLevel = 0; ///< Mean of the dark images.
    double brightLevel = 0; ///< Mean of the bright images.
    double darkNoise = 0; ///< Standard deviation of the temporal noise of one dark image.
    double brightNoise = 0;
    std::optional<double> systemGain; ///< DN per electron; missing if the noise does not grow with the light.
    double dsnu = 0; ///< DSNU1288 in DN.
    double prnu = 0; ///< PRNU1288, relative; contains the shading.
    double pixelDsnu = 0; ///< The same without the large-scale shape and without defect pixels.
    double pixelPrnu = 0;
    double shading = 0; ///< Highest minus lowest value of the large-scale shape, relative to its mean.
};

/// A line through the picture: the mean of each column or line relative to the mean of the picture.
using UniformityProfile = std::vector<double>;

/// How uniform the pictures of an evenly lit surface are.
struct Uniformity
{
    std::vector<ChannelUniformity> channels;

    // Over all channels: the root mean square of the first four, and the largest shading.
    double dsnu = 0;
    double prnu = 0;
    double pixelDsnu = 0;
    double pixelPrnu = 0;
    double shading = 0;
    std::optional<double> dsnuElectrons; ///< DSNU1288 in electrons, if the system gain is known.
    std::optional<double> pixelDsnuElectrons;

    UniformityProfile horizontal; ///< At most profilePoints values.
    UniformityProfile vertical; ///< Empty for a line scan sensor.

    static constexpr std::size_t profilePoints = 256;
};

/// Measures the non-uniformity by EMVA 1288 release 4.0, "Linear", its sections on temporal noise and on
/// spatial nonuniformity, for every channel:
///
///   s² = variance over the pixels of the averaged image - temporal variance / number of images
///   DSNU1288 = s_dark (in electrons: divided by the system gain K)
///   PRNU1288 = sqrt(s_bright² - s_dark²) / (mean_bright - mean_dark)
///   K = (temporal variance_bright - temporal variance_dark) / (mean_bright - mean_dark)
///
/// The standard measures the bright images at 50 % saturation; here, they have the level of the bright
/// images. `pixelPrnu` and `pixelDsnu` are measured after dividing by, or subtracting, the ShadingGrid, which
/// takes the place of the standard's high-pass filter.
/// @param dark, bright Images of the same region and format.
Uniformity measureUniformity(const MeanImage &dark, const MeanImage &bright);
