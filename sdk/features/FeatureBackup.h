#pragma once

#include "sdk/features/FeatureLoader.h"

#include <optional>

/// All settings of a camera at one moment, in the order in which they are written back: what was locked comes
/// before its lock.
struct FeatureBackup
{
    std::vector<FeatureSetting> settings;
    std::size_t lockedCount = 0; ///< That many of the first settings were locked.
    bool isCancelled = false; ///< True if the progress function has cancelled the work.
};

/// Reads the settings that belong into a settings file, and those that `others` contains besides. Cameras
/// change some features together with others, so more than the settings of a file is needed to undo its load.
/// Returns an error only if the device is gone.
CvxCPP::CvxResult readBackup(CvxCPP::Device &device, const std::vector<FeatureSetting> &others,
    FeatureBackup &backup, const FeatureProgress &progress = {});

/// Writes the settings back. Adds what could not be written back to the notes of the report, and sets
/// `isRestored`. Returns the errors of loadFeatures().
CvxCPP::CvxResult restoreBackup(CvxCPP::Device &device, const FeatureBackup &backup, LoadReport &report,
    const FeatureProgress &progress = {});

/// Like loadAllFeatures() without backup, but uses this one, or reads one if there is none. Afterwards, the
/// backup is that from before the load; there is none if nothing could be written anyway.
CvxCPP::CvxResult loadAllFeatures(CvxCPP::Device &device, const FeatureFile &file,
    std::optional<FeatureBackup> &backup, LoadReport &report, const FeatureProgress &progress = {});
