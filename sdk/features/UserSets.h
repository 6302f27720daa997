#pragma once

#include "sdk/features/DeviceCalls.h"

#include <string>
#include <vector>

/// One set of settings that a camera keeps in itself.
struct UserSet
{
    std::string name; ///< An entry of UserSetSelector.
    CvxCPP::NodeState load; ///< States of the commands for this set. Without name if they are unknown.
    CvxCPP::NodeState save;
};

/// The user sets of a camera.
struct UserSets
{
    std::vector<UserSet> sets; ///< Empty if the camera has none.
    std::string defaultFeature; ///< Name of the feature that chooses the set for power-on; may be empty.
    CvxCPP::NodeState byDefault; ///< State of that feature.
};

// Each function returns an error if the device is gone. UserSetSelector has the same value afterwards as
// before.

/// Reads which user sets the camera has and what can be done with each of them. Selects one after the other
/// if the camera allows that. If the progress function returns false, the remaining sets are known by their
/// names only.
CvxCPP::CvxResult readUserSets(
    CvxCPP::Device &device, UserSets &userSets, const FeatureProgress &progress = {});

/// Executes a command, for example "UserSetLoad", for one user set, and waits until it is done, for at
/// most 15 s. Also returns the error if the camera refuses.
CvxCPP::CvxResult executeForUserSet(
    CvxCPP::Device &device, const std::string &userSet, const std::string &command);
