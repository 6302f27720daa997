#pragma once

/// Computes red, green and blue of one line from the mosaic RGGB, by the mean of the neighbours of each
/// colour. The pointers are those of the first pixel, which has an even column; neighbours on the left and
/// right must be readable. `isRedLine` is true for lines with red pixels.
void demosaicLine(
    const float *above, const float *line, const float *below, int width, bool isRedLine, float *rgb);
