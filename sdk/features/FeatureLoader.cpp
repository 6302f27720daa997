#include "sdk/features/FeatureLoader.h"

#include "sdk/features/FeatureBackup.h"
#include "sdk/features/LoadRun.h"

#include <algorithm>

using namespace CvxCPP;

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
    const FeatureProgress readProgress = [&progress](std::size_t done, std::size_t total) {
        return !progress || progress(done, total / 2); // The other half are the writes.
    };
    LoadRun run(device, directory, directory.resolve(file.settings), readProgress);
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
    std::optional<FeatureBackup> backup;
    return loadAllFeatures(device, file, backup, report, progress);
}

CvxResult loadAllFeatures(Device &device, const FeatureFile &file, std::optional<FeatureBackup> &backup,
    LoadReport &report, const FeatureProgress &progress)
{
    FeatureDirectory directory;
    if (CvxResult result = readDirectory(device, directory); !result)
        return result;
    LoadRun run(device, directory, directory.resolve(file.settings), progress);
    CvxResult result = run.readBefore();
    const bool canStart = result && file.problems.empty() && !run.isHopeless() && !run.isCancelled();
    if (canStart && !backup)
        result = readBackup(device, file.settings, backup.emplace(), progress);
    const bool isStarted = canStart && result && !backup->isCancelled;
    if (isStarted)
        result = run.apply();
    report = run.finish(result);
    report.isCancelled = report.isCancelled || (backup && backup->isCancelled);
    const bool isComplete = !report.isCancelled && report.count(FeatureOutcome::Failed) == 0;
    if (!result || !isStarted || isComplete)
        return result;
    return restoreBackup(device, *backup, report);
}
