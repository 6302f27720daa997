#pragma once

#include "sdk/image/PixelKernels.h"
#include "sdk/image/PixelLayout.h"

/// Returns the weights that turn luma and chroma of `depth` bits into colours of the same depth.
YuvWeights yuvWeights(YuvStandard standard, unsigned depth);
