#pragma once

#include "tools/camerasetup/settings/SettingsLoad.h"

#include <QString>

// What a load would do, or has done, for people.

/// Returns what becomes of one setting, with the reason.
QString outcomeText(const FeatureChange &change, const LoadReport &report);

/// Returns how the whole load stands, with the number of settings of each outcome.
QString summaryText(const SettingsLoad &load);
