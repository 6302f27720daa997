#include "sdk/features/FeatureLoader.h"

#include "sdk/features/FeatureReader.h"
#include "sdk/features/FeatureSaver.h"
#include "sdk/features/FeatureText.h"
#include "sdk/features/LoadRun.h"

#include <algorithm>

using namespace CvxCPP;

namespace {

CvxResult readDirectory(Device &device, FeatureDirectory &directory)
{
    std::vector<NodeInfo> nodes;
    CvxResult result = device.GetNodes(nodes);
    if (result)
        directory = FeatureDirectory(std::move(nodes));
    return result;
}

/// Reads all settings that loading may change: also features that the file lacks, because cameras change
/// some features together with others.
CvxResult readSnapshot(Device &device, const FeatureDirectory &directory, const FeatureFile &file,
    const FeatureProgress &progress, SavedFeatures &snapshot)
{
    FeatureReader reader(device, directory, progress);
    CvxResult result = reader.read(settingNames(directory, file.settings));
    snapshot.isCancelled = reader.isCancelled();
    // What was locked before is written back first, before its lock is restored.
    std::stable_partition(reader.readings().begin(), reader.readings().end(),
        [](const FeatureReading &reading) { return reading.state.lockReason != LockReason::None; });
    for (FeatureReading &reading : reader.readings()) {
        const NodeState &state = reading.state;
        if (state.access == NodeAccess::ReadWrite && state.value.index() != 0)
            snapshot.settings.push_back(
                {std::move(reading.selectors), state.name, settingText(state.value), 0});
    }
    return result;
}

/// Writes the snapshot back, and reports what could not be written back.
CvxResult restore(Device &device, const FeatureDirectory &directory,
    const std::vector<FeatureSetting> &snapshot, LoadReport &report)
{
    const FeatureProgress noProgress;
    LoadRun run(device, directory, snapshot, noProgress);
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

} // namespace

std::size_t LoadReport::count(FeatureOutcome outcome) const
{
    return static_cast<std::size_t>(std::count_if(changes.begin(), changes.end(),
        [outcome](const FeatureChange &change) { return change.outcome == outcome; }));
}

CvxResult planFeatures(
    Device &device, const FeatureFile &file, LoadReport &report, const FeatureProgress &progress)
{
    FeatureDirectory directory;
    if (CvxResult result = readDirectory(device, directory); !result)
        return result;
    LoadRun run(device, directory, directory.resolve(file.settings), progress);
    CvxResult result = run.readBefore();
    report = run.finish(result);
    return result;
}

CvxResult loadFeatures(
    Device &device, const FeatureFile &file, LoadReport &report, const FeatureProgress &progress)
{
    FeatureDirectory directory;
    if (CvxResult result = readDirectory(device, directory); !result)
        return result;
    LoadRun run(device, directory, directory.resolve(file.settings), progress);
    CvxResult result = run.readBefore();
    if (result)
        result = run.apply();
    report = run.finish(result);
    return result;
}

CvxResult loadAllFeatures(
    Device &device, const FeatureFile &file, LoadReport &report, const FeatureProgress &progress)
{
    FeatureDirectory directory;
    if (CvxResult result = readDirectory(device, directory); !result)
        return result;
    LoadRun run(device, directory, directory.resolve(file.settings), progress);
    CvxResult result = run.readBefore();
    SavedFeatures snapshot;
    const bool canStart = result && file.problems.empty() && !run.isHopeless() && !run.isCancelled();
    if (canStart)
        result = readSnapshot(device, directory, file, progress, snapshot);
    const bool isStarted = canStart && result && !snapshot.isCancelled;
    if (isStarted)
        result = run.apply();
    report = run.finish(result);
    report.isCancelled = report.isCancelled || snapshot.isCancelled;
    const bool isComplete = !report.isCancelled && report.count(FeatureOutcome::Failed) == 0;
    if (!result || !isStarted || isComplete)
        return result;
    return restore(device, directory, snapshot.settings, report);
}
