#pragma once

#include "CvxCPP/Device.h"
#include "tools/kit/measure/run/Sentence.h"

#include <optional>
#include <string>
#include <vector>

/// The feature that reports temperatures, and the places for which it does.
struct TemperatureSource
{
    std::string feature; ///< For example "DeviceTemperature".
    std::string selector; ///< For example "DeviceTemperatureSelector"; empty if there is none.
    std::vector<std::string> places; ///< Entries of the selector; one empty name without a selector.
};

/// Finds where the camera reports its temperatures. Of "DeviceTemperature" and the names that older cameras
/// use, takes the first one that the camera has; an integer only if its unit is degrees Celsius. If the
/// selector cannot be written, for example because the device only watches, takes the present place.
Sentence findTemperatures(CvxCPP::Device &device, TemperatureSource &source);

/// One reading of all places. A place that cannot be read has no value.
struct TemperatureReading
{
    std::vector<std::optional<double>> celsius; ///< In the order of the source's places.
    CvxCPP::CvxResult problem; ///< The first failure.
};

/// Reads the temperatures of all places and selects the place again that was selected before. Blocks for at
/// most 5 s per call of the device.
TemperatureReading readTemperatures(CvxCPP::Device &device, const TemperatureSource &source);
