#pragma once

#include "CvxCPP/Device.h"
#include "sdk/features/FeatureDirectory.h"
#include "tools/kit/measure/linescan/EncoderRatio.h"
#include "tools/kit/measure/linescan/RateLimits.h"
#include "tools/kit/measure/run/Sentence.h"

#include <map>
#include <string>
#include <vector>

/// The features that set the lines of a camera. Cameras name some of them differently.
enum class LineFeature
{
    LineRate,
    LineRateEnable,
    ExposureTime,
    ExposureAuto,
    TriggerMode, ///< The trigger features are those of the trigger of lines.
    TriggerSource,
    TriggerActivation,
    TriggerDivider,
    TriggerMultiplier,
    EncoderSourceA,
    EncoderSourceB,
    EncoderMode,
    EncoderDivider,
    EncoderResolution
};

/// What the camera says about one feature.
struct LineFeatureState
{
    std::vector<SelectorSetting> selectors; ///< The values for which the state holds.
    CvxCPP::NodeState state;

    double number() const; ///< 0 if the value is no number.
    std::string text() const; ///< Entry of an enumeration; "true" or "false".
    std::optional<double> minimum() const;
    std::optional<double> maximum() const;
    bool allows(const std::string &entry) const;
};

/// The settings and limits of a line scan camera at one time.
struct LineScanCamera
{
    bool takesLines = false; ///< False for a camera that takes whole pictures.
    double binning = 1; ///< Pixels of the sensor per pixel of the picture, across the movement.
    std::optional<double> sensorPixelSize; ///< Micrometres, if the camera says it.
    std::optional<double> linesPerPicture;
    RateFacts facts;
    std::map<LineFeature, LineFeatureState> features; ///< The features that the camera has at present.

    /// Returns null if the camera does not have the feature.
    const LineFeatureState *find(LineFeature feature) const;

    /// Returns true if lines are started by an encoder at present.
    bool usesEncoder() const;

    /// Returns the lines per pulse of the encoder with the present settings.
    EncoderRatio presentRatio() const;

    /// Returns what the features allow.
    RatioLimits ratioLimits() const;
};

/// Reads a camera. Sets the selectors of the trigger and of the encoder for a moment. Fails if the camera
/// does not answer; what the camera lacks is left out. Blocks for some calls of the device.
CvxCPP::CvxResult readLineScanCamera(CvxCPP::Device &device, LineScanCamera &camera);

/// Returns why the tool cannot work with this camera; empty if it can.
Sentence unsuitableCamera(const LineScanCamera &camera);
