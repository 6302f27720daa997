#pragma once

#include "sdk/features/FeatureDirectory.h"

/// Returns the features of settings files with the selectors that the files show, for files whose camera is
/// unknown: a name that ends in "Selector" or "Index" selects a feature if its value differs between two
/// lines of this feature in the same file, or if braces say so.
FeatureDirectory guessSelectors(const std::vector<const std::vector<FeatureSetting> *> &files);
