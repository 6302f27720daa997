#pragma once

#include "sdk/image/RawImage.h"
#include "tools/kit/picture/DisplaySettings.h"

/// Returns the present curve with the black and white points that fit to the region: of each component, 0.1 %
/// of the pixels may become black and 0.1 % white. The white balance of `settings` is taken into account.
/// Blocks for some milliseconds per megapixel.
ContrastCurve autoContrast(const RawImage &picture, const Region &region, const DisplaySettings &settings);
