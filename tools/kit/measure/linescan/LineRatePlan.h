#pragma once

#include "tools/kit/measure/linescan/LineScanCamera.h"
#include "tools/kit/measure/linescan/LineScanInputs.h"

/// One feature that is to be written.
struct PlannedSetting
{
    std::vector<SelectorSetting> selectors;
    std::string name;
    CvxCPP::NodeValue before; ///< What the camera has had; no value if it is unknown.
    CvxCPP::NodeValue value;
    bool isLockedByStream = false; ///< The stream has to be stopped.
};

/// Returns the setting as a person reads it, for example "TriggerMode [TriggerSelector=LineStart] = On".
std::string settingText(const PlannedSetting &setting);

/// Returns a value as text that does not depend on the locale.
std::string plannedValueText(const CvxCPP::NodeValue &value);

/// What the camera has to be set to for square pixels, and what that means. Rates are lines per second,
/// times are microseconds, lengths on the object are micrometres.
struct LineRatePlan
{
    Sentence problem; ///< Why nothing could be calculated, or why the plan cannot be applied.
    std::vector<Sentence> warnings;

    double objectPixel = 0; ///< What a pixel covers across the movement.
    std::optional<double> wantedRate; ///< Speed divided by the object pixel; unknown without a speed.
    std::optional<double> rate; ///< What the camera can be set to.
    std::optional<double> longestExposure; ///< At the wanted rate.
    std::optional<double> exposure; ///< What the plan leaves or sets.
    std::optional<double> deadTime;
    std::optional<double> wantedRatio; ///< Lines per pulse of the encoder.
    std::optional<EncoderRatio> ratio;
    double errorPercent = 0; ///< Positive: too many lines, so objects become too tall.
    RateLimit limit; ///< The lowest limit that is known, with the planned exposure.
    std::optional<double> highestSpeed; ///< Speed of the object at this limit, in mm/s.

    std::vector<PlannedSetting> settings; ///< In the order in which they are written.

    bool isPossible() const { return problem.isEmpty(); }
    bool needsPause() const;
};

/// Returns the sentence about a limit that is too low, with the reason and what to do.
Sentence limitSentence(const RateLimit &limit, const RateFacts &facts);

nlohmann::ordered_json settingsJson(const std::vector<PlannedSetting> &settings);
nlohmann::ordered_json toJson(const LineRatePlan &plan);
