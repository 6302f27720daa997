#pragma once

#include "sdk/features/DeviceCalls.h"
#include "sdk/features/FeatureFile.h"

/// The settings of a camera.
struct SavedFeatures
{
    std::vector<FeatureSetting> settings; ///< In the order of formatFeatureFile().
    std::vector<FeatureNote> notes; ///< What could not be saved, and why.
    bool isCancelled = false; ///< True if the progress function has cancelled the work.
};

/// Reads the features that belong into a settings file: those that the camera marks for it and that can be
/// read and written, under each combination of their selectors' values. The selectors are restored
/// afterwards. With CvxAccessWatch, selectors keep their present values, and a note says so. Returns the
/// error if the device is gone; there are no settings then. Blocks for as long as the camera needs, usually
/// for less than a second.
CvxCPP::CvxResult saveFeatures(
    CvxCPP::Device &device, SavedFeatures &saved, const FeatureProgress &progress = {});

/// Reads the readable features of these names in the same way, whether they belong into a file or not.
CvxCPP::CvxResult readFeatures(CvxCPP::Device &device, const FeatureDirectory &directory,
    const std::vector<std::string> &names, SavedFeatures &saved, const FeatureProgress &progress = {});

/// Returns the names of the features that belong into a settings file, and of those that the other settings
/// contain besides, for example a file of another program.
std::vector<std::string> settingNames(
    const FeatureDirectory &directory, const std::vector<FeatureSetting> &others = {});
