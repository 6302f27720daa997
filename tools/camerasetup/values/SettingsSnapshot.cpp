#include "tools/camerasetup/values/SettingsSnapshot.h"

#include <utility>

using namespace CvxCPP;

CvxResult readSnapshot(Device &device, const std::vector<FeatureSetting> &others, SettingsSnapshot &snapshot,
    const FeatureProgress &progress)
{
    std::vector<NodeInfo> nodes;
    if (CvxResult result = device.GetNodes(nodes); !result)
        return result;
    FeatureDirectory directory(std::move(nodes));
    SavedFeatures read;
    if (CvxResult result = readFeatures(device, directory, settingNames(directory, others), read, progress);
        !result)
        return result;
    snapshot.time = QDateTime::currentDateTime();
    snapshot.side = {std::move(read.settings), std::move(directory)};
    snapshot.notes = std::move(read.notes);
    snapshot.isCancelled = read.isCancelled;
    return {};
}
