#pragma once

#include "tools/camerasetup/values/FeatureEdit.h"

#include <chrono>
#include <optional>

/// Decides which changes of a feature belong together, as a slider makes them: those that follow each other
/// within a second, without a change of another feature between them.
class EditSequence
{
public:
    using Clock = std::chrono::steady_clock;
    static constexpr std::chrono::milliseconds maxGap{1000};

    /// Returns true if the change continues the previous one. The change is then the previous one.
    bool continues(const FeatureEdit &edit, Clock::time_point now);

    /// The next change begins a new sequence.
    void end() { m_last.reset(); }

private:
    struct Last
    {
        std::string name;
        std::vector<SelectorSetting> selectors;
        Clock::time_point time;
    };

    std::optional<Last> m_last;
};
