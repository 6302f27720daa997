#include "sdk/features/FeatureBackup.h"

#include "sdk/features/FeatureReader.h"
#include "sdk/features/FeatureSaver.h"
#include "sdk/features/FeatureText.h"
#include "sdk/features/LoadRun.h"

#include <algorithm>

using namespace CvxCPP;

CvxResult readBackup(Device &device, const std::vector<FeatureSetting> &others, FeatureBackup &backup,
    const FeatureProgress &progress)
{
    std::vector<NodeInfo> nodes;
    if (CvxResult result = device.GetNodes(nodes); !result)
        return result;
    const FeatureDirectory directory(std::move(nodes));
    FeatureReader reader(device, directory, progress);
    CvxResult result = reader.read(settingNames(directory, others));
    if (!result)
        return result;
    std::stable_partition(reader.readings().begin(), reader.readings().end(),
        [](const FeatureReading &reading) { return reading.state.lockReason != LockReason::None; });
    backup = {{}, 0, reader.isCancelled()};
    for (FeatureReading &reading : reader.readings()) {
        const NodeState &state = reading.state;
        if (state.access != NodeAccess::ReadWrite || state.value.index() == 0)
            continue;
        backup.settings.push_back({std::move(reading.selectors), state.name, settingText(state.value), 0});
        if (state.lockReason != LockReason::None)
            ++backup.lockedCount;
    }
    return result;
}

CvxResult restoreBackup(
    Device &device, const FeatureBackup &backup, LoadReport &report, const FeatureProgress &progress)
{
    std::vector<NodeInfo> nodes;
    if (CvxResult result = device.GetNodes(nodes); !result)
        return result;
    const FeatureDirectory directory(std::move(nodes));
    LoadRun run(device, directory, backup.settings, progress);
    CvxResult result = run.readBefore();
    if (result)
        result = run.apply();
    const LoadReport undone = run.finish(result);
    for (const FeatureChange &change : undone.changes) {
        if (change.outcome == FeatureOutcome::Failed)
            report.notes.push_back({change.setting.name,
                change.setting.name + " has not got its previous value " + change.setting.value
                    + " back: " + change.reason});
    }
    report.notes.insert(report.notes.end(), undone.notes.begin(), undone.notes.end());
    report.isRestored = static_cast<bool>(result);
    return result;
}
