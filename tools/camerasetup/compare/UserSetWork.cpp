#include "tools/camerasetup/compare/UserSetWork.h"

#include "sdk/features/FeatureText.h"

#include <algorithm>
#include <chrono>
#include <functional>
#include <set>
#include <thread>

using namespace CvxCPP;

namespace {

constexpr const char *selectorName = "UserSetSelector";

/// Executes a command and waits until the camera is done with it.
CvxResult runCommand(Device &device, const std::string &name)
{
    using namespace std::chrono_literals;
    using Clock = std::chrono::steady_clock;
    if (CvxResult result = device.Execute(name); !result)
        return result;
    for (const auto end = Clock::now() + 15s; Clock::now() < end;) { // Flash memory can be slow.
        std::vector<NodeState> states;
        if (CvxResult result = device.ReadStates({name}, states); !result)
            return result;
        if (states.front().isCommandDone)
            return {};
        std::this_thread::sleep_for(20ms);
    }
    return {CvxErrorTimeout, "The camera does not finish " + name + "."};
}

CvxResult selectAndRun(Device &device, const std::string &userSet, const std::string &command)
{
    CvxResult result = device.Write(selectorName, NodeValue(userSet));
    return result ? runCommand(device, command) : result;
}

/// Moves settings that are locked now to the front: they are written before their lock is put back.
CvxResult moveLockedToFront(Device &device, std::vector<FeatureSetting> &settings)
{
    std::vector<std::string> names;
    for (const FeatureSetting &setting : settings)
        names.push_back(setting.name);
    std::vector<NodeState> states;
    if (CvxResult result = readStates(device, names, states); !result)
        return result;
    std::set<std::string> locked;
    for (const NodeState &state : states) {
        if (state.lockReason != LockReason::None)
            locked.insert(state.name);
    }
    std::stable_partition(settings.begin(), settings.end(),
        [&locked](const FeatureSetting &setting) { return locked.count(setting.name) > 0; });
    return {};
}

/// Notes what differs from the settings before the visit.
void takeRestored(const LoadReport &report, UserSetVisit &visit)
{
    for (const FeatureChange &change : report.changes) {
        if (change.outcome == FeatureOutcome::Unchanged || change.outcome == FeatureOutcome::Changed
            || isSameText(change.after, change.setting.value))
            continue;
        visit.remaining.push_back(
            {change.setting.selectors, change.setting.name, change.setting.value, change.after});
        addNote(visit.notes, change.setting.name,
            change.setting.name + " of this camera has not got its previous value " + change.setting.value
                + " back: " + change.reason);
    }
    for (const FeatureNote &note : report.notes)
        addNote(visit.notes, note.name, note.text);
}

CvxResult restore(Device &device, const SettingsSnapshot &before, UserSetVisit &visit)
{
    FeatureFile file;
    file.settings = before.side.settings;
    LoadReport report;
    const CvxResult result = loadFeatures(device, file, report);
    takeRestored(report, visit);
    if (!result)
        addNote(visit.notes, "", "The settings of this camera could not be put back: " + result.text);
    return result;
}

using Visit = std::function<CvxResult()>;

/// Keeps the camera's own settings during a visit of a user set.
CvxResult keepingSettings(Device &device, const std::string &userSet, const FeatureProgress &progress,
    UserSetVisit &visit, const Visit &work)
{
    NodeValue selected;
    if (CvxResult result = device.Read(selectorName, selected); !result)
        return result;
    SettingsSnapshot before;
    CvxResult result = readSnapshot(device, {}, before, progress);
    if (!result || before.isCancelled) {
        visit.content.isCancelled = before.isCancelled;
        return result;
    }
    if (result = moveLockedToFront(device, before.side.settings); !result)
        return result;
    result = selectAndRun(device, userSet, "UserSetLoad");
    if (result)
        result = work();
    // Also after a failure: the camera may have loaded a part of the set.
    const CvxResult restored = isDeviceGone(result) ? CvxResult() : restore(device, before, visit);
    const CvxResult reselected = isDeviceGone(result) ? CvxResult() : device.Write(selectorName, selected);
    if (!reselected)
        addNote(visit.notes, selectorName,
            "The choice of the user set could not be restored: " + reselected.text);
    return result ? restored : result;
}

} // namespace

CvxResult readUserSet(Device &device, const std::string &userSet, const std::vector<FeatureSetting> &others,
    UserSetVisit &visit, const FeatureProgress &progress)
{
    return keepingSettings(device, userSet, progress, visit,
        [&] { return readSnapshot(device, others, visit.content, progress); });
}

CvxResult writeUserSet(Device &device, const std::string &userSet,
    const std::vector<FeatureSetting> &settings, UserSetVisit &visit, const FeatureProgress &progress)
{
    return keepingSettings(device, userSet, progress, visit, [&] {
        FeatureFile file;
        file.settings = settings;
        CvxResult result = loadFeatures(device, file, visit.report, progress);
        const bool hasChanges = visit.report.count(FeatureOutcome::Changed) > 0;
        if (result && hasChanges && !visit.report.isCancelled)
            result = selectAndRun(device, userSet, "UserSetSave");
        if (result)
            result = readSnapshot(device, settings, visit.content, progress);
        return result;
    });
}
