#pragma once

#include "CvxCPP/Node.h"

#include <QString>
#include <QStringList>
#include <QVector>

/// One line of what a camera says of a feature.
struct FeatureFact
{
    QString title;
    QString text; ///< Empty if the fact consists of features.
    QStringList features; ///< Names of features that a person may want to see.
};

/// Returns what the camera says of the feature, for people.
/// @param state Null if it was not read; then, limits and access are left out.
QVector<FeatureFact> featureFacts(const CvxCPP::NodeInfo &info, const CvxCPP::NodeState *state);
