#pragma once

#include "CvxCPP/Device.h"
#include "tools/kit/measure/run/Sentence.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

/// What a tap's setting changes.
enum class TapSetting
{
    Gain,
    BlackLevel
};

/// The features by which a camera sets the gain, or the black level, of each tap.
struct TapControl
{
    TapSetting setting = TapSetting::Gain;
    std::string selector; ///< For example "GainSelector".
    std::string feature; ///< For example "Gain".
    std::vector<std::string> entries; ///< Entries of the selector, one for each tap.
    bool isInteger = false;
    bool isDecibel = false; ///< The unit of the feature.
};

/// The value of one tap's setting with its limits.
struct TapValue
{
    double value = 0;
    double minimum = 0;
    double maximum = 0;
    double increment = 0; ///< 0 if every value is allowed.
};

/// Returns the control, or a sentence that names the feature that is missing. The entries are those of the
/// Standard Features Naming Convention: Tap1, AnalogTap1 or DigitalTap1 and so on.
std::variant<TapControl, Sentence> findTapControl(
    CvxCPP::Device &device, TapSetting setting, std::size_t taps);

/// Reads the values of all taps. Writes the selector. Returns why that failed; empty if it succeeded.
Sentence readTapValues(CvxCPP::Device &device, const TapControl &control, std::vector<TapValue> &values);

/// Writes the values that differ from `present`, rounded to the increment and within the limits, and stores
/// them in `present`.
Sentence writeTapValues(CvxCPP::Device &device, const TapControl &control, const std::vector<double> &values,
    std::vector<TapValue> &present);

/// Returns the nearest value that the feature allows.
double allowedValue(const TapValue &limits, double value);
