#pragma once

#include "sdk/image/ImageConverter.h"
#include "tools/kit/measure/focus/FocusBlocks.h"
#include "tools/kit/measure/focus/FocusMeasurement.h"

#include <vector>

/// How a picture is measured.
struct FocusOptions
{
    FocusGrid grid;
    double blackLevel = 0; ///< Value of a dark pixel; 1 is the range of the pixel values.
    bool isLineScan = false; ///< Only differences along the line count: the others depend on the movement.
};

/// Measures how sharp pictures are. One object serves one thread and reuses its memory.
///
/// The sharpness is the gradient energy, normalised by the brightness and without the part of the noise:
///
///     S = (mean((I(x + 1, y) - I(x, y))²) + mean((I(x, y + 1) - I(x, y))²) - 4 σ²) / (mean(I) - black)²
///
/// Neighbours are the next pixels of the same colour; pixels that have the maximum value do not count. The
/// energy of the gradient is the measure that E. Krotkov recommends after a comparison ("Focusing",
/// International Journal of Computer Vision 1, 1988); M. Subbarao and J.-K. Tyan ("Selecting the Optimal
/// Focus Measure for Autofocusing and Depth-from-Focus", IEEE PAMI 20, 1998) show that it is a good one, that
/// it has to be normalised by the brightness, and that white noise adds a constant to it. Here σ² is the
/// variance of the noise of one pixel, as NoiseCurve estimates it from the same picture. So the value depends
/// neither on the exposure nor on the gain.
class FocusMeter
{
public:
    /// Measures one complete picture. Returns why it cannot be measured at all, for example because of its
    /// pixel format; empty if it was measured. Whether the values say something: FocusMeasurement::problem.
    Sentence measure(const RawImage &picture, const FocusOptions &options, FocusMeasurement &result);

private:
    void readBlocks(const RawImage &picture, std::size_t step);

    ImageConverter m_converter;
    std::vector<std::uint16_t> m_words; // The lines of one row of blocks.
    FocusBlocks m_blocks;
};
