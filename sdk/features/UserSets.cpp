#include "sdk/features/UserSets.h"

#include "sdk/features/SelectorControl.h"

#include <iterator>

using namespace CvxCPP;

namespace {

constexpr const char *selector = "UserSetSelector";
constexpr const char *loadCommand = "UserSetLoad";
constexpr const char *saveCommand = "UserSetSave";

/// Returns the result of restoring the selectors if everything before has succeeded.
CvxResult withRestored(SelectorControl &selectors, const CvxResult &result)
{
    CvxResult restored = isDeviceGone(result) ? CvxResult() : selectors.restore();
    return result ? restored : result;
}

/// Reads the state of the feature that chooses the set for power-on.
CvxResult readDefault(Device &device, const FeatureDirectory &directory, UserSets &userSets)
{
    for (const char *const name : {"UserSetDefault", "UserSetDefaultSelector"}) {
        if (!directory.find(name))
            continue;
        std::vector<NodeState> states;
        if (CvxResult result = device.ReadStates({name}, states); !result)
            return result;
        if (states.front().access == NodeAccess::NotImplemented)
            continue;
        userSets.defaultFeature = name;
        userSets.byDefault = std::move(states.front());
        break;
    }
    return {};
}

/// Selects a set and reads what can be done with it.
CvxResult readCommands(
    Device &device, const FeatureDirectory &directory, SelectorControl &selectors, UserSet &userSet)
{
    if (CvxResult result = selectors.select(selector, userSet.name); !result)
        return isDeviceGone(result) ? result : CvxResult();
    for (const auto &[command, state] :
        {std::pair(loadCommand, &userSet.load), {saveCommand, &userSet.save}}) {
        if (!directory.find(command))
            continue;
        std::vector<NodeState> states;
        if (CvxResult result = device.ReadStates({command}, states); !result)
            return result;
        *state = std::move(states.front());
    }
    return {};
}

} // namespace

CvxResult readUserSets(Device &device, UserSets &userSets, const FeatureProgress &progress)
{
    FeatureDirectory directory;
    if (CvxResult result = readDirectory(device, directory); !result)
        return result;
    userSets = {};
    if (!directory.find(selector))
        return {};
    std::vector<NodeState> states;
    if (CvxResult result = device.ReadStates({selector}, states); !result)
        return result;
    SelectorControl selectors(device, directory);
    CvxResult result = readDefault(device, directory, userSets);
    const std::vector<std::string> &names = states.front().availableEntries;
    bool isCancelled = false;
    for (const std::string &name : names) {
        isCancelled = isCancelled || (progress && !progress(userSets.sets.size(), names.size()));
        userSets.sets.push_back({name, {}, {}});
        if (result && !isCancelled)
            result = readCommands(device, directory, selectors, userSets.sets.back());
    }
    return withRestored(selectors, result);
}

CvxResult executeForUserSet(Device &device, const std::string &userSet, const std::string &command)
{
    FeatureDirectory directory;
    if (CvxResult result = readDirectory(device, directory); !result)
        return result;
    SelectorControl selectors(device, directory);
    CvxResult result = selectors.select(selector, userSet);
    if (result)
        result = executeAndWait(device, command, std::chrono::seconds(15)); // Flash memory can be slow.
    return withRestored(selectors, result);
}
