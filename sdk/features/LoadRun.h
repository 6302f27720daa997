#pragma once

#include "sdk/features/LoadItem.h"
#include "sdk/features/SelectorControl.h"

/// Writes a list of settings to a camera. One object serves one list: readBefore(), perhaps apply(), and
/// finish() in any case.
class LoadRun
{
public:
    /// Takes settings as FeatureDirectory::resolve() returns them.
    LoadRun(CvxCPP::Device &device, const FeatureDirectory &directory,
        const std::vector<FeatureSetting> &settings, const FeatureProgress &progress);

    /// Reads the present values and plans the changes. Returns CvxErrorNotWritable if a stream runs.
    CvxCPP::CvxResult readBefore();

    /// Returns true if some settings certainly fail, for example because the camera lacks the feature.
    bool isHopeless() const;

    /// Writes the settings and reads them back, unless the work was cancelled before.
    CvxCPP::CvxResult apply();

    /// Restores the selectors, unless the device is gone, and returns the report. Changes `result` if the
    /// device is gone by now.
    LoadReport finish(CvxCPP::CvxResult &result);

    bool isCancelled() const { return m_isCancelled; }

private:
    using Group = std::vector<std::size_t>; // Indexes of items with the same selectors.

    void findRepeats();
    void findGroups();
    CvxCPP::CvxResult checkStream();
    CvxCPP::CvxResult readGroup(const Group &group);
    CvxCPP::CvxResult readBack();
    CvxCPP::CvxResult select(const LoadItem &item);
    CvxCPP::CvxResult writeAnnounced();
    CvxCPP::CvxResult writePending();
    bool hasPending() const;
    std::size_t findLostValues();
    const LoadItem *lockOf(const LoadItem &item) const;
    bool reportProgress(std::size_t done);

    CvxCPP::Device &m_device;
    const FeatureDirectory &m_directory;
    const FeatureProgress &m_progress;
    SelectorControl m_selectors;
    std::vector<LoadItem> m_items;
    std::vector<Group> m_groups;
    unsigned m_passes = 0;
    bool m_isApplied = false;
    bool m_isCancelled = false;
};
