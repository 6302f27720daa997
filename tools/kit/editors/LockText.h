#pragma once

#include "CvxCPP/Node.h"

#include <QString>

/// Returns why a feature cannot be written at present, as a sentence for people; empty if it can be written.
/// @param lockingFeature Display name of NodeState::lockingNode; empty if unknown.
/// @param lockingValue Value of that feature for people; empty if unknown.
QString lockText(
    const CvxCPP::NodeState &state, const QString &lockingFeature, const QString &lockingValue = {});
