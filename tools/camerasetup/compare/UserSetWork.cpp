#include "tools/camerasetup/compare/UserSetWork.h"

#include "sdk/features/UserSets.h"
#include "tools/camerasetup/values/SettingsChange.h"

#include <functional>
#include <utility>

using namespace CvxCPP;

namespace {

using Visit = std::function<CvxResult(const FeatureProgress &)>;

/// Keeps the camera's own settings during a visit of a user set.
CvxResult keepingSettings(Device &device, const std::string &userSet,
    const std::vector<FeatureSetting> &others, const FeatureProgress &progress, UserSetVisit &visit,
    const Visit &work)
{
    SettingsChange change;
    const auto visitSet = [&](const FeatureProgress &part) {
        visit.isStillLoaded = true;
        CvxResult result = executeForUserSet(device, userSet, "UserSetLoad");
        if (result)
            result = work(part);
        if (isDeviceGone(result))
            return result;
        // Also after a failure: the camera may have loaded a part of the set.
        LoadReport undone;
        CvxResult restored = restoreBackup(device, change.before, undone);
        visit.notes = std::move(undone.notes);
        visit.isStillLoaded = !restored;
        if (!restored)
            addNote(visit.notes, "", "The settings of this camera could not be put back: " + restored.text);
        return result ? restored : result;
    };
    CvxResult result = recordChange(device, others, visitSet, change, progress);
    visit.content.isCancelled = visit.content.isCancelled || change.before.isCancelled;
    visit.remaining = std::move(change.edits);
    return result;
}

} // namespace

CvxResult readUserSet(Device &device, const std::string &userSet, const std::vector<FeatureSetting> &others,
    UserSetVisit &visit, const FeatureProgress &progress)
{
    return keepingSettings(device, userSet, others, progress, visit,
        [&](const FeatureProgress &part) { return readSnapshot(device, others, visit.content, part); });
}

CvxResult writeUserSet(Device &device, const std::string &userSet,
    const std::vector<FeatureSetting> &settings, UserSetVisit &visit, const FeatureProgress &progress)
{
    return keepingSettings(device, userSet, settings, progress, visit, [&](const FeatureProgress &part) {
        FeatureFile file;
        file.settings = settings;
        CvxResult result = loadFeatures(device, file, visit.report, part);
        const bool hasChanges = visit.report.count(FeatureOutcome::Changed) > 0;
        if (result && hasChanges && !visit.report.isCancelled) {
            result = executeForUserSet(device, userSet, "UserSetSave");
            visit.isSaved = static_cast<bool>(result);
        }
        // What was saved is shown, so this is not cancelled any more.
        if (result)
            result = readSnapshot(device, settings, visit.content, withoutCancel(part));
        return result;
    });
}
