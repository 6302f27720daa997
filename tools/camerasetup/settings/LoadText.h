#pragma once

#include "tools/camerasetup/settings/SettingsLoad.h"

#include <QString>

// What a load would do, or has done, for people.

/// Returns the name of a feature with the values of its selectors, for example "Gain [GainSelector=All]".
QString settingLabel(const std::string &name, const std::vector<SelectorSetting> &selectors);

/// Returns what becomes of one setting, with the reason.
QString outcomeText(const FeatureChange &change, const LoadReport &report);

/// Returns how the whole load stands, with the number of settings of each outcome.
QString summaryText(const SettingsLoad &load);
