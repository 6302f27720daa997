#pragma once

#include "CvxCPP/Node.h"
#include "sdk/features/FeatureFile.h"
#include "sdk/features/FeatureText.h"

#include <optional>
#include <string>
#include <vector>

/// A change of one feature. Values are the texts of a settings file; see settingText().
struct FeatureEdit
{
    std::vector<SelectorSetting> selectors; ///< Selectors with which the change was made, outer ones first.
    std::string name;
    std::optional<std::string> before; ///< No value if it is unknown.
    std::string after; ///< Empty for a command.
};

/// Returns true if the text is a value of the feature. An empty text is one only for a string.
inline bool isValueText(const CvxCPP::NodeInfo *node, const std::string &text)
{
    return !text.empty() || (node && node->type == CvxCPP::NodeType::String);
}

/// Returns the text of the value; no text if there is no value.
inline std::optional<std::string> knownText(const CvxCPP::NodeValue &value)
{
    return value.index() == 0 ? std::nullopt : std::optional(settingText(value));
}
