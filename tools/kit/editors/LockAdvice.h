#pragma once

#include "CvxCPP/Node.h"

#include <QString>

/// Why a feature cannot be changed, and what a person can do about it.
struct LockAdvice
{
    QString reason; ///< A sentence for people; empty if the feature can be changed.
    QString lockingFeature; ///< Name of the feature that is responsible; empty if there is none or unknown.
    QString showText; ///< For a button that shows this feature; empty without lockingFeature.
    QString unlockText; ///< For a button that writes `unlockValue`; empty if no value is known to help.
    CvxCPP::NodeValue unlockValue; ///< The value of lockingFeature that ends the lock.
};

/// Returns the advice for a feature in this state.
/// @param lockingInfo Properties of NodeState::lockingNode; null if the camera has no such feature.
/// @param lockingState Its state; null if it was not read.
LockAdvice lockAdvice(const CvxCPP::NodeState &state, const CvxCPP::NodeInfo *lockingInfo,
    const CvxCPP::NodeState *lockingState);
