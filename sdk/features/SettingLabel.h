#pragma once

#include "sdk/features/FeatureFile.h"

#include <string>
#include <vector>

/// Returns a feature with its selectors as a person reads it, for example "Gain [GainSelector=All]". Values
/// of selectors come from cameras and files, so the text may contain any character.
std::string settingLabel(const std::string &name, const std::vector<SelectorSetting> &selectors);
