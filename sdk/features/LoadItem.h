#pragma once

#include "sdk/features/FeatureDirectory.h"
#include "sdk/features/FeatureLoader.h"

#include <utility>

/// A setting while it is being loaded.
struct LoadItem
{
    /// Converts the texts of a setting to values of the features' types.
    LoadItem(const FeatureDirectory &directory, const FeatureSetting &setting);

    /// Returns a text that items with the same selectors have in common.
    std::string selectorKey() const;

    /// Returns true if the setting is written and not replaced by a later one.
    bool counts() const { return isUsable && !isRepeated; }

    bool hasWantedValue() const;

    /// Returns true if the setting certainly fails.
    bool isHopeless() const;

    /// Sets the expected outcome. `lock` is the setting that locks this one now, or null.
    void plan(const LoadItem *lock);

    /// Sets the outcome after the last write.
    void judge(const LoadItem *lock);

    FeatureChange change;
    std::vector<std::pair<std::string, CvxCPP::NodeValue>> selectors;
    CvxCPP::NodeValue wanted;
    CvxCPP::NodeState state; ///< The state that was read last.
    std::string error; ///< Why the last write failed, or the selection before it.
    bool isUsable = false; ///< The camera has the feature, and the text is a value of its type.
    bool isRepeated = false; ///< A later setting of the file replaces this one.
    bool isPending = false; ///< Has to be written.

    /// Returns what the camera has made of the setting, as a sentence.
    std::string readBackText() const;

private:
    std::string convert(const FeatureDirectory &directory);
};
