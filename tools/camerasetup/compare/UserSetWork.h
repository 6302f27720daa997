#pragma once

#include "sdk/features/FeatureLoader.h"
#include "tools/camerasetup/values/FeatureEdit.h"
#include "tools/camerasetup/values/SettingsSnapshot.h"

#include <string>
#include <vector>

/// The result of loading a user set for a moment.
struct UserSetVisit
{
    SettingsSnapshot content; ///< Settings of the user set; after a write, the new ones.
    LoadReport report; ///< What has become of the settings that were written to the set.
    std::vector<FeatureEdit> remaining; ///< Settings of the camera that differ from those before the visit.
    std::vector<FeatureNote> notes; ///< Why they could not be put back.
    bool isSaved = false; ///< True if settings were saved in the user set.
    bool isStillLoaded = false; ///< True if the camera may still have the settings of the user set.
};

// Both functions load the user set, restore the camera's own settings and the selector of the user sets, and
// then return. Called on the thread of the connection, without a running stream. They return an error if the
// user set could not be loaded, read or saved; also then, the settings from before are written back.

/// Reads the settings of a user set, and those that `others` contains besides.
CvxCPP::CvxResult readUserSet(CvxCPP::Device &device, const std::string &userSet,
    const std::vector<FeatureSetting> &others, UserSetVisit &visit, const FeatureProgress &progress);

/// Writes settings into a user set. Nothing is saved if the work is cancelled or no setting could be written.
CvxCPP::CvxResult writeUserSet(CvxCPP::Device &device, const std::string &userSet,
    const std::vector<FeatureSetting> &settings, UserSetVisit &visit, const FeatureProgress &progress);
