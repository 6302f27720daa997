#pragma once

#include "sdk/features/FeatureLoader.h"

/// Returns the settings of a file with other values for some of them. The order stays. A setting that the
/// file lacks follows the other values of the same feature, or comes last. The report says what was changed,
/// and which values a file cannot hold.
/// @param directory Features of the camera; empty if it is unknown. Selectors are then those that the
/// settings show.
std::vector<FeatureSetting> mergedSettings(const std::vector<FeatureSetting> &file,
    const std::vector<FeatureSetting> &changes, const FeatureDirectory &directory, LoadReport &report);
