#pragma once

#include "tools/kit/measure/defects/DefectFindings.h"
#include "tools/kit/measure/defects/PixelStatistics.h"
#include "tools/kit/measure/run/MeasureContext.h"

#include <optional>
#include <string>
#include <vector>

/// The images of one set, dark or bright, as numbers for each pixel.
struct DefectImages
{
    PixelStatistics statistics;
    std::uint32_t pixelFormat = 0;
    std::optional<double> exposureTime; ///< Microseconds; no value if the camera does not tell.
    std::optional<double> gain; ///< In the camera's unit.
    /// Features by which the camera corrects defect pixels itself. They were switched off for the images.
    std::vector<std::string> cameraCorrections;
};

/// Takes images with a covered lens. Automatic functions, gamma and corrections of the camera are off
/// meanwhile. Returns why the images cannot be used; empty if they can.
Sentence takeDarkImages(const MeasureContext &context, std::size_t count, DefectImages &dark);

/// Takes images of an evenly lit surface, with the gain and the region of the dark images.
Sentence takeBrightImages(
    const MeasureContext &context, std::size_t count, const DefectImages &dark, DefectImages &bright);

/// Compares all pixels. Returns why the result cannot be trusted; empty if it can.
Sentence examinePixels(const DefectImages &dark, const DefectImages &bright, const MeasureProgress &progress,
    DefectFindings &findings);
