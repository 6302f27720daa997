#include "tools/kit/measure/linescan/PlanWriter.h"

#include "sdk/features/DeviceCalls.h"
#include "sdk/features/SelectorControl.h"
#include "sdk/features/SettingLabel.h"

#include <algorithm>

using namespace CvxCPP;

namespace {

CvxResult writeOne(Device &device, SelectorControl &selectors, const PlannedSetting &setting)
{
    for (const SelectorSetting &selector : setting.selectors)
        if (CvxResult result = selectors.select(selector.name, selector.value); !result)
            return result;
    return device.Write(setting.name, setting.value);
}

/// Returns the limit of the line rate if the camera has refused because of it. A camera can show the limit
/// of its sensor only after its exposure was shortened.
Sentence refusedRate(Device &device, const PlannedSetting &refused, const CvxResult &result)
{
    const auto *const rate = std::get_if<double>(&refused.value);
    std::vector<NodeState> states;
    if (result.code != CvxErrorOutOfRange || !rate || refused.name.find("LineRate") == std::string::npos
        || !device.ReadStates({refused.name}, states) || states.empty())
        return {};
    const auto *const maximum = std::get_if<double>(&states.front().maximum);
    if (!maximum || *maximum >= *rate)
        return {};
    return {QT_TRANSLATE_NOOP("Sentence",
                "The camera takes at most %1 kHz, but square pixels need %2 kHz. Nothing was changed. Choose "
                "a lower speed or a smaller magnification."),
        {SentenceNumber{*maximum / 1e3, 2}, SentenceNumber{*rate / 1e3, 2}}};
}

Sentence refusedSetting(Device &device, const PlannedSetting &refused, const CvxResult &result)
{
    if (Sentence sentence = refusedRate(device, refused, result); !sentence.isEmpty())
        return sentence;
    return {QT_TRANSLATE_NOOP("Sentence", "The camera has refused %1, so nothing was changed. %2"),
        {settingText(refused), result.text}};
}

/// Writes the earlier values of the settings before `end`, the last one first. Returns what failed.
Sentence putBack(
    Device &device, SelectorControl &selectors, const std::vector<PlannedSetting> &settings, std::size_t end)
{
    Sentence problem;
    for (std::size_t i = end; i-- > 0;) {
        PlannedSetting before = settings[i];
        std::swap(before.before, before.value);
        const CvxResult result = writeOne(device, selectors, before);
        if (!result && problem.isEmpty())
            problem = {QT_TRANSLATE_NOOP("Sentence",
                           "The camera has refused a setting, and then also refused to go back to %1: %2"),
                {settingText(before), result.text}};
    }
    return problem;
}

} // namespace

Sentence writeSettings(Device &device, const std::vector<PlannedSetting> &settings)
{
    FeatureDirectory directory;
    if (const CvxResult result = readDirectory(device, directory); !result)
        return untranslated(result.text);
    SelectorControl selectors(device, directory);
    Sentence problem;
    for (std::size_t i = 0; i < settings.size(); ++i) {
        const CvxResult result = writeOne(device, selectors, settings[i]);
        if (result)
            continue;
        problem = refusedSetting(device, settings[i], result);
        if (const Sentence failed = putBack(device, selectors, settings, i); !failed.isEmpty())
            problem = failed;
        break;
    }
    const CvxResult restored = selectors.restore();
    return problem.isEmpty() && !restored ? untranslated(restored.text) : problem;
}

Sentence writeSettingsSafely(Device &device, const std::vector<PlannedSetting> &settings)
{
    const CvxResult begun = device.BeginTemporaryChanges();
    // Settings that an earlier measurement could not put back are still remembered.
    if (!begun && begun.code != CvxErrorAlreadyStarted)
        return untranslated(begun.text);
    const Sentence problem = writeSettings(device, settings);
    const CvxResult ended
        = device.EndTemporaryChanges(problem.isEmpty() ? TemporaryChanges::Keep : TemporaryChanges::PutBack);
    return problem.isEmpty() && !ended ? untranslated(ended.text) : problem;
}

std::vector<PlannedSetting> undoOf(const std::vector<PlannedSetting> &settings)
{
    std::vector<PlannedSetting> undo(settings.rbegin(), settings.rend());
    for (PlannedSetting &setting : undo)
        std::swap(setting.before, setting.value);
    return undo;
}

Sentence applyPlan(Device &device, const LineRatePlan &plan)
{
    return plan.isPossible() ? writeSettings(device, plan.settings) : plan.problem;
}
