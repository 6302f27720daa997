#pragma once

#include "sdk/features/FeatureDirectory.h"

#include <optional>

/// The settings of a camera or of a file.
struct ComparedSide
{
    std::vector<FeatureSetting> settings;
    FeatureDirectory directory; ///< Features of the camera; empty if the settings come from a file.
};

enum class FeatureDifference : std::uint8_t
{
    Equal,
    Different,
    OnlyLeft,
    OnlyRight
};

/// One feature of two sides, for one combination of its selectors' values.
struct ComparedFeature
{
    std::vector<SelectorSetting> selectors; ///< Outer selectors first.
    std::string name;
    std::string category; ///< Empty if it is unknown.
    std::string left; ///< Empty if the left side lacks the feature.
    std::string right;
    FeatureDifference difference = FeatureDifference::Equal;
    bool isIgnorable = false; ///< The value belongs to one camera or one moment, for example a serial number.
};

/// Compares two sides. Numbers are compared by their values, floats with a tolerance. The result is in the
/// order of the camera's categories; features that no camera of the two knows follow in the order of the
/// files. Where both sides are files, the selectors are those that the files show: names that end in
/// "Selector" or "Index" and change between two lines of a feature.
std::vector<ComparedFeature> compareFeatures(const ComparedSide &left, const ComparedSide &right);

/// Returns true if two cameras with the same settings differ in this feature.
bool isIgnorableFeature(const std::string &name);
