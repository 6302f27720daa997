#pragma once

#include "sdk/features/DeviceCalls.h"
#include "sdk/features/SelectorControl.h"

#include <functional>
#include <utility>

/// The state of a feature for one combination of its selectors' values.
struct FeatureReading
{
    std::vector<SelectorSetting> selectors; ///< Outer selectors first.
    CvxCPP::NodeState state;
};

/// Reads features under every combination of the values that their selectors allow, and restores the
/// selectors afterwards. Where a selector cannot be written, for example because the device was opened with
/// CvxAccessWatch, only its present value is used, and a note says so.
class FeatureReader
{
public:
    FeatureReader(CvxCPP::Device &device, const FeatureDirectory &directory, const FeatureProgress &progress);

    /// Returns true for a combination of the selectors' values that is not to be read.
    using Skip = std::function<bool(const std::vector<SelectorSetting> &selectors)>;

    /// Lets several readers share the work; each one can be cancelled by its progress function. `skip` is
    /// asked for each combination, after it was asked for the values of its outer selectors alone.
    void setSkip(Skip skip) { m_skip = std::move(skip); }

    /// Returns what setSkip() of the next reader should skip: combinations that were read or that the camera
    /// has refused, and values of outer selectors for which that is true of all combinations.
    const std::vector<std::vector<SelectorSetting>> &finished() const { return m_finished; }

    /// Reads the features of these names: those without selectors first, the others grouped by their
    /// selectors. Fails only if the device is gone; the selectors are restored as far as possible.
    CvxCPP::CvxResult read(const std::vector<std::string> &names);

    std::vector<FeatureReading> &readings() { return m_readings; }
    std::vector<FeatureNote> &notes() { return m_notes; }
    bool isCancelled() const { return m_isCancelled; }

private:
    /// Features with the same selectors.
    struct Group
    {
        std::vector<std::string> selectors;
        std::vector<std::string> names;
    };

    std::vector<Group> grouped(const std::vector<std::string> &names) const;
    CvxCPP::CvxResult readGroup(
        const Group &group, std::vector<SelectorSetting> &selected, std::size_t depth);
    CvxCPP::CvxResult readValue(const Group &group, std::vector<SelectorSetting> &selected, std::size_t depth,
        const CvxCPP::NodeValue &value);
    CvxCPP::CvxResult readSelected(const Group &group, const std::vector<SelectorSetting> &selected);
    std::vector<CvxCPP::NodeValue> selectorValues(const CvxCPP::NodeState &state);
    bool isFull(const Group &group);
    bool reportProgress();

    CvxCPP::Device &m_device;
    const FeatureDirectory &m_directory;
    const FeatureProgress &m_progress;
    Skip m_skip;
    SelectorControl m_selectors;
    std::vector<FeatureReading> m_readings;
    std::vector<FeatureNote> m_notes;
    std::vector<std::vector<SelectorSetting>> m_finished;
    std::size_t m_done = 0;
    std::size_t m_total = 0;
    bool m_isCancelled = false;
};
