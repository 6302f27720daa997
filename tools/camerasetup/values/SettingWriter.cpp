#include "tools/camerasetup/values/SettingWriter.h"

#include "sdk/features/FeatureText.h"
#include "sdk/features/SelectorControl.h"
#include "tools/camerasetup/values/FeatureEdit.h"

#include <utility>

using namespace CvxCPP;

namespace {

CvxResult parseSetting(
    const FeatureDirectory &directory, const std::string &name, const std::string &text, NodeValue &value)
{
    const NodeInfo *const node = directory.find(name);
    if (!node)
        return {CvxErrorNotFound, "The camera does not have the feature " + name + '.'};
    auto parsed = settingValue(node->type, text);
    if (auto *const problem = std::get_if<std::string>(&parsed))
        return {CvxErrorInvalidParameter, std::move(*problem)};
    value = std::move(std::get<NodeValue>(parsed));
    return {};
}

CvxResult select(SelectorControl &control, const FeatureDirectory &directory, const FeatureSetting &setting)
{
    for (const SelectorSetting &selector : setting.selectors) {
        NodeValue value;
        if (CvxResult result = parseSetting(directory, selector.name, selector.value, value); !result)
            return result;
        if (CvxResult result = control.select(selector.name, value); !result)
            return result;
    }
    return {};
}

/// Writes the feature with the present values of the selectors.
CvxResult writeSelected(
    Device &device, const std::string &name, const NodeValue &value, WrittenSetting &written)
{
    std::vector<NodeState> states;
    if (CvxResult result = device.ReadStates({name}, states); !result)
        return result;
    written.before = knownText(states.front().value);
    written.isStreamLocked = states.front().lockReason == LockReason::StreamRunning;
    if (written.isStreamLocked)
        return {};
    if (CvxResult result = device.Write(name, value); !result)
        return result;
    written.isWritten = true;
    NodeValue accepted;
    const CvxResult read = device.Read(name, accepted);
    written.after = settingText(read ? accepted : value); // Some features can only be written.
    return {};
}

} // namespace

CvxResult writeSetting(
    Device &device, const FeatureDirectory &directory, const FeatureSetting &setting, WrittenSetting &written)
{
    NodeValue value;
    if (CvxResult result = parseSetting(directory, setting.name, setting.value, value); !result)
        return result;
    SelectorControl control(device, directory);
    CvxResult result = select(control, directory, setting);
    if (result)
        result = writeSelected(device, setting.name, value, written);
    CvxResult restored = control.restore();
    return result ? restored : result;
}
