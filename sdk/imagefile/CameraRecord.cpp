#include "sdk/imagefile/CameraRecord.h"

#include "sdk/imagefile/Sidecar.h"
#include "sdk/imagefile/ValueJson.h"
#include "sdk/names/CameraNames.h"

using namespace CvxCPP;

namespace {

nlohmann::ordered_json readSettings(Device &device)
{
    std::vector<NodeInfo> nodes;
    std::vector<std::string> names;
    if (device.GetNodes(nodes)) {
        for (const NodeInfo &node : nodes) {
            if (node.isStreamable)
                names.push_back(node.name);
        }
    }
    auto settings = nlohmann::ordered_json::object();
    std::vector<NodeState> states;
    if (!device.ReadStates(names, states))
        return settings;
    for (const NodeState &state : states) {
        if (state.value.index() != 0)
            settings[state.name] = valueJson(state.value);
    }
    return settings;
}

} // namespace

CameraRecord readCameraRecord(const Camera &camera, Device &device)
{
    CameraRecord record;
    const CameraNames names = readCameraNames(camera);
    record.id = names.extendedId;
    record.model = names.model;
    record.serialNumber = names.serial;
    record.userName = names.userName;
    if (!device.ReadString("DeviceVendorName", record.vendor))
        record.vendor.clear();
    record.settingsTime = utcNow();
    record.settings = readSettings(device);
    return record;
}
