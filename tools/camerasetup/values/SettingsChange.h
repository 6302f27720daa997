#pragma once

#include "sdk/features/FeatureBackup.h"
#include "tools/camerasetup/values/FeatureEdit.h"

#include <functional>
#include <vector>

/// Returns the settings that differ. Leaves out what was locked both times, because the camera changes such
/// a value by itself, for example an automatic function the exposure time. In this order, and backwards, a
/// value is written before its lock.
std::vector<FeatureEdit> editsBetween(const FeatureBackup &before, const FeatureBackup &after);

/// Work that changes settings of the camera, with everything that it has changed.
struct SettingsChange
{
    FeatureBackup before; ///< Complete unless it was cancelled; then the work was not done.
    std::vector<FeatureEdit> edits; ///< Also what the camera has changed together with other features.
};

/// Does the work on the thread of the connection, and reads all settings before and afterwards.
/// @param others Settings that may change besides those that belong into a settings file.
/// @param work Gets its share of the progress.
CvxCPP::CvxResult recordChange(CvxCPP::Device &device, const std::vector<FeatureSetting> &others,
    const std::function<CvxCPP::CvxResult(const FeatureProgress &)> &work, SettingsChange &change,
    const FeatureProgress &progress);

/// Returns progress that is reported, but cannot cancel the work.
FeatureProgress withoutCancel(const FeatureProgress &progress);
