#pragma once

#include "sdk/features/FeatureFile.h"

#include <string>
#include <vector>

/// A change of one feature. Values are the texts of a settings file; see settingText().
struct FeatureEdit
{
    std::vector<SelectorSetting> selectors; ///< With which the change was made, outer selectors first.
    std::string name;
    std::string before; ///< Empty if it is unknown.
    std::string after; ///< Empty for a command.
};
