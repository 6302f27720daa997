#include "sdk/features/FeatureSaver.h"

#include "sdk/features/FeatureReader.h"
#include "sdk/features/FeatureText.h"

#include <set>

using namespace CvxCPP;

namespace {

/// Moves the readings of one access to the settings. A value that a file cannot hold becomes a note.
void takeReadings(FeatureReader &reader, bool (*isWanted)(NodeAccess), SavedFeatures &saved)
{
    saved.notes = std::move(reader.notes());
    saved.isCancelled = reader.isCancelled();
    for (FeatureReading &reading : reader.readings()) {
        const NodeState &state = reading.state;
        if (!isWanted(state.access))
            continue;
        std::string value = settingText(state.value);
        if (state.value.index() == 0)
            addNote(saved.notes, state.name, state.name + " cannot be read: " + state.problem);
        else if (!fitsFeatureFile(value))
            addNote(saved.notes, state.name,
                value.empty() ? state.name + " is an empty text, which settings files cannot hold."
                              : state.name + " contains characters that settings files cannot hold.");
        else
            saved.settings.push_back({std::move(reading.selectors), state.name, std::move(value), 0});
    }
}

bool isSetting(NodeAccess access)
{
    return access == NodeAccess::ReadWrite;
}

bool isReadable(NodeAccess access)
{
    return access == NodeAccess::ReadWrite || access == NodeAccess::ReadOnly;
}

} // namespace

std::vector<std::string> settingNames(
    const FeatureDirectory &directory, const std::vector<FeatureSetting> &others)
{
    std::set<std::string> wanted;
    for (const FeatureSetting &setting : others)
        wanted.insert(setting.name);
    std::vector<std::string> names;
    for (const NodeInfo &node : directory.nodes()) {
        const bool isWanted = node.isStreamable || wanted.count(node.name) > 0;
        if (isWanted && directory.hasValue(node.name) && !directory.isSelector(node.name))
            names.push_back(node.name);
    }
    return names;
}

CvxResult saveFeatures(Device &device, SavedFeatures &saved, const FeatureProgress &progress)
{
    std::vector<NodeInfo> nodes;
    if (CvxResult result = device.GetNodes(nodes); !result)
        return result;
    const FeatureDirectory directory(std::move(nodes));
    if (CvxResult result = announce(device, directory, {"DeviceFeaturePersistenceStart"}); !result)
        return result;
    FeatureReader reader(device, directory, progress);
    CvxResult result = reader.read(settingNames(directory));
    if (CvxResult ended = announce(device, directory, {"DeviceFeaturePersistenceEnd"}); result)
        result = std::move(ended);
    saved = {};
    if (result)
        takeReadings(reader, isSetting, saved);
    return result;
}

CvxResult readFeatures(Device &device, const FeatureDirectory &directory,
    const std::vector<std::string> &names, SavedFeatures &saved, const FeatureProgress &progress)
{
    FeatureReader reader(device, directory, progress);
    CvxResult result = reader.read(names);
    saved = {};
    if (result)
        takeReadings(reader, isReadable, saved);
    return result;
}
