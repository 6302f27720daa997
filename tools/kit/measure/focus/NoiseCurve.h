#pragma once

#include <vector>

/// How the variance of the noise of a pixel depends on the pixel's value, estimated from one picture.
///
/// The estimate uses the places without edges: in each block, the mean square of the diagonal detail
/// (a - b - c + d) / 2 of squares of 2 x 2 pixels is the variance of white noise, whatever gradient lies
/// under it (the finest diagonal wavelet coefficients: D. Donoho and I. Johnstone, "Ideal spatial adaptation
/// by wavelet shrinkage", Biometrika 81, 1994). Blocks of similar brightness are one sample, from which the
/// blocks with edges are removed by clipping. The noise of a sensor is that of the dark signal, of the
/// photons, which grows linearly, and of the pixels' response, which grows quadratically (EMVA Standard 1288,
/// Release 4.0, section 2), so its variance grows and is convex: the curve is the lower convex envelope of
/// the samples. Samples in which every block has edges lie above the envelope and have no effect. The fine
/// grain of a surface counts as noise, because one picture does not tell them apart.
class NoiseCurve
{
public:
    /// A block of squares of 2 x 2 pixels, without clipped pixels.
    struct Block
    {
        double mean = 0; ///< Mean of the pixel values.
        double variance = 0; ///< Mean square of the diagonal detail.
    };

    /// Number of squares of 2 x 2 pixels per block, on which the statistics of the blocks depend.
    static constexpr int squaresPerBlock = 16;

    /// @param blocks In any order.
    explicit NoiseCurve(std::vector<Block> blocks);

    /// Returns the variance of the noise of a pixel with this value.
    double variance(double value) const;

private:
    std::vector<Block> m_points; // In the order of the means.
};
