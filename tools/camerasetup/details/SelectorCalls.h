#pragma once

#include "sdk/features/DeviceCalls.h"
#include "sdk/features/SelectorControl.h"

#include <string>
#include <vector>

/// The states of some features under one value of a selector.
struct SelectorColumn
{
    std::string value; ///< The value of the selector as the text of a settings file.
    std::vector<CvxCPP::NodeState> states; ///< In the order of the features.
};

/// The values of a selector side by side.
struct SelectorValues
{
    std::vector<SelectorSetting> outer; ///< The selectors of the selector, which keep their values.
    std::vector<SelectorColumn> columns;
    bool isShortened = false; ///< The selector has more values than can be read.
    bool isComplete = false; ///< False until all columns were read.
};

/// A value for a feature under some values of its selectors.
struct SelectedValue
{
    std::vector<SelectorSetting> selectors; ///< Outer selectors first.
    std::string name;
    CvxCPP::NodeValue value;
};

/// Reads features under each value that the selector allows, and restores the selector. A selector that
/// cannot be written has one column. Returns after a fraction of a second, so that a slow camera is free for
/// other calls in between; call the function again with the same values until they are complete. Begins anew
/// if the camera has other values of the outer selectors meanwhile, or allows others. If `progress` returns
/// false, the values stay incomplete. Called on the thread of the connection, as is the next function.
CvxCPP::CvxResult readSelectorValues(CvxCPP::Device &device, const FeatureDirectory &directory,
    const std::string &selector, const std::vector<std::string> &features, SelectorValues &values,
    const FeatureProgress &progress);

/// Writes a value under the values of its selectors, and restores the selectors.
CvxCPP::CvxResult writeSelectedValue(
    CvxCPP::Device &device, const FeatureDirectory &directory, const SelectedValue &value);
