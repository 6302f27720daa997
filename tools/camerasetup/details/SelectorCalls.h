#pragma once

#include "sdk/features/DeviceCalls.h"
#include "sdk/features/SelectorControl.h"

#include <string>
#include <vector>

/// The states of some features under one value of a selector.
struct SelectorColumn
{
    std::string value; ///< Of the selector, as the text of a settings file.
    std::vector<CvxCPP::NodeState> states; ///< In the order of the features.
};

/// The values of a selector side by side.
struct SelectorValues
{
    std::vector<SelectorColumn> columns;
    bool isShortened = false; ///< The selector has more values than can be read.
};

/// A value for a feature under some values of its selectors.
struct SelectedValue
{
    std::vector<SelectorSetting> selectors; ///< Outer selectors first.
    std::string name;
    CvxCPP::NodeValue value;
};

/// Reads features under each value that the selector allows, and restores the selector. A selector that
/// cannot be written has one column. The other selectors keep their values. Called on the thread of the
/// connection, as is the next function.
CvxCPP::CvxResult readSelectorValues(CvxCPP::Device &device, const FeatureDirectory &directory,
    const std::string &selector, const std::vector<std::string> &features, SelectorValues &values,
    const FeatureProgress &progress);

/// Writes a value under the values of its selectors, and restores the selectors.
CvxCPP::CvxResult writeSelectedValue(
    CvxCPP::Device &device, const FeatureDirectory &directory, const SelectedValue &value);
