#pragma once

#include "tools/kit/measure/flatfield/FlatFieldBuilder.h"
#include "tools/kit/measure/flatfield/ReferenceChecks.h"
#include "tools/kit/measure/flatfield/Uniformity.h"

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

/// The camera's settings while the images were taken.
struct ReferenceSettings
{
    double exposureTime = 0; ///< Microseconds; 0 if the camera does not tell.
    std::vector<std::string> switchedOff; ///< Features that were changed for the measurement, with the value.
};

/// A correction with its numbers.
struct FlatFieldResult
{
    BuiltFlatField built;
    GainDetail detail = GainDetail::EveryPixel;
    GainLevel level = GainLevel::Mean;
    std::string pixelFormat; ///< PFNC name.
    std::size_t darkImages = 0; ///< Images that the correction was made of.
    std::size_t brightImages = 0;
    std::size_t checkImages = 0; ///< Further images, of which the numbers after the correction are measured.
    double brightShare = 0; ///< Level of the brightest colour, as a share of the range.
    ReferenceSettings darkSettings;
    ReferenceSettings brightSettings;
    Uniformity before; ///< Uniformity of the images that the correction was made of.
    Uniformity after; ///< Uniformity of the other images, after the correction.
    std::vector<Sentence> warnings;
};

/// Returns the numbers, without the values of the pixels.
nlohmann::ordered_json toJson(const FlatFieldResult &result);
