#pragma once

#include "CvxCPP/Node.h"

#include <QString>
#include <QStringList>

#include <string>

/// Returns the value as people read it, with its unit and as the camera wants it to be shown; "Run" for a
/// command; why there is no value if it cannot be read; an empty text for a category.
QString valueText(const CvxCPP::NodeInfo &info, const CvxCPP::NodeState &state);

/// Returns the value in the same way; an empty text if there is none.
QString plainValueText(const CvxCPP::NodeInfo &info, const CvxCPP::NodeValue &value);

/// Returns the value of a settings file in the same way, except that texts and registers stay as they are.
/// @param info Null if the feature is unknown; then, the text is returned.
QString settingValueText(const CvxCPP::NodeInfo *info, const std::string &text);

/// Returns the title of a feature with the values of its selectors, for example "Gain [Red]".
QString withSelectors(const QString &title, const QStringList &selectors);
