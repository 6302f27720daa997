#pragma once

#include "tools/kit/measure/run/MeasureContext.h"
#include "tools/kit/measure/taps/TapControl.h"
#include "tools/kit/measure/taps/TapMeasurement.h"

#include <nlohmann/json_fwd.hpp>
#include <optional>

/// What a measurement of the taps needs to know.
struct TapOptions
{
    std::optional<TapLayout> layout; ///< Chosen by hand; by default that of DeviceTapGeometry.
    TapReference reference = TapReference::Mean;
    std::size_t images = 8; ///< Images of each measurement; at least 2.
    double darkLevel = 0; ///< Level of all taps in a dark picture, in units of pixel values; 0 if unknown.
};

/// Returns the layout that the options or the camera say, or a sentence that says what to choose.
std::variant<TapLayout, Sentence> findTapLayout(CvxCPP::Device &device, const TapOptions &options);

/// Returns where the camera's picture is on its sensor, as far as the camera tells.
SensorPlace readSensorPlace(CvxCPP::Device &device);

/// Takes images and adds them up. Returns why that failed; empty if it succeeded.
Sentence takeTapPicture(const MeasureContext &context, const TapOptions &options, TapPicture &picture);

/// Measures the taps in bright, or in dark pictures, after the checks of the reference.
Sentence measureTaps(const MeasureContext &context, const TapOptions &options, TapSetting setting,
    TapMeasurement &measurement);

/// What balancing has done.
struct TapBalance
{
    TapControl control;
    std::vector<double> valuesBefore; ///< Values of the setting, one for each tap.
    std::vector<double> valuesAfter;
    TapMeasurement before;
    TapMeasurement after;
    std::size_t rounds = 0; ///< How often values were written.
    bool isReached = false; ///< The goal; otherwise the mismatch did not improve any more.
};

constexpr double gainGoal = 0.002; ///< Share of the signal; better than what can be seen.
constexpr double blackLevelGoal = 0.0002; ///< Share of the range of the pixel values.
constexpr std::size_t maxBalancingRounds = 8;

/// Balances the gains with a bright picture, or the black levels with a dark one: measures, writes the values
/// that would make all taps equal, and repeats that until the goal is reached or the mismatch does not
/// improve any more; then the best values stay. The effect of a value is estimated from the unit, then from
/// what the last change has brought. If a tap cannot be lowered, the others are raised. Automatic functions
/// that would interfere are off meanwhile.
Sentence balanceTaps(
    const MeasureContext &context, const TapOptions &options, TapSetting setting, TapBalance &balance);

/// Writes the values from before the balancing.
Sentence undoBalance(CvxCPP::Device &device, const TapBalance &balance);

nlohmann::ordered_json toJson(const TapBalance &balance);

/// Returns one line for each tap: number, mean, noise and deviation before and after, values before and
/// after.
std::string toCsv(const TapMeasurement &measurement, const std::optional<TapBalance> &balance);
