#include "tools/camerasetup/values/SettingsChange.h"

#include "sdk/features/FeatureText.h"

#include <map>
#include <utility>

using CvxCPP::CvxResult;
using CvxCPP::Device;

namespace {

std::string keyOf(const FeatureSetting &setting)
{
    std::string key = setting.name;
    for (const SelectorSetting &selector : setting.selectors)
        key += '\n' + selector.name + '=' + selector.value;
    return key;
}

/// Returns the progress of one of the three parts of a change, which is a third of the whole.
FeatureProgress partOf(const FeatureProgress &progress, std::size_t part)
{
    return [&progress, part](std::size_t done, std::size_t total) {
        return !progress || progress(part * total + done, 3 * total);
    };
}

} // namespace

std::vector<FeatureEdit> editsBetween(const FeatureBackup &before, const FeatureBackup &after)
{
    std::map<std::string, std::size_t> indexes;
    for (std::size_t index = 0; index < after.settings.size(); ++index)
        indexes.emplace(keyOf(after.settings[index]), index);
    std::vector<FeatureEdit> lockedNow;
    std::vector<FeatureEdit> usual;
    std::vector<FeatureEdit> lockedBefore;
    for (std::size_t index = 0; index < before.settings.size(); ++index) {
        const FeatureSetting &setting = before.settings[index];
        const auto now = indexes.find(keyOf(setting));
        if (now == indexes.end() || isSameText(setting.value, after.settings[now->second].value))
            continue;
        const bool wasLocked = index < before.lockedCount;
        const bool isLocked = now->second < after.lockedCount;
        if (wasLocked && isLocked)
            continue;
        auto &edits = wasLocked ? lockedBefore : isLocked ? lockedNow : usual;
        edits.push_back({setting.selectors, setting.name, setting.value, after.settings[now->second].value});
    }
    std::vector<FeatureEdit> edits = std::move(lockedNow);
    edits.insert(edits.end(), usual.begin(), usual.end());
    edits.insert(edits.end(), lockedBefore.begin(), lockedBefore.end());
    return edits;
}

CvxResult recordChange(Device &device, const std::vector<FeatureSetting> &others,
    const std::function<CvxResult(const FeatureProgress &)> &work, SettingsChange &change,
    const FeatureProgress &progress)
{
    if (CvxResult result = readBackup(device, others, change.before, partOf(progress, 0)); !result)
        return result;
    if (change.before.isCancelled)
        return {};
    CvxResult result = work(partOf(progress, 1));
    if (isDeviceGone(result))
        return result;
    // What was done is recorded completely, even if it was cancelled.
    FeatureBackup after;
    if (CvxResult reading = readBackup(device, others, after, withoutCancel(partOf(progress, 2))); !reading)
        return reading;
    change.edits = editsBetween(change.before, after);
    return result;
}

FeatureProgress withoutCancel(const FeatureProgress &progress)
{
    return [progress](std::size_t done, std::size_t total) {
        if (progress)
            progress(done, total);
        return true;
    };
}
