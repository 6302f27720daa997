#include "sdk/imagefile/CameraRecord.h"

#include "sdk/imagefile/Sidecar.h"
#include "sdk/imagefile/ValueJson.h"

using namespace CvxCPP;

namespace {

/// Calls a function that reads a string with two calls.
template <typename Read>
std::string readString(const Read &read)
{
    unsigned size = 0;
    if (read(nullptr, size) != CvxErrorSuccess)
        return {};
    std::string text(size, '\0');
    if (read(text.data(), size) != CvxErrorSuccess)
        return {};
    return text.c_str(); // Without the terminating NUL.
}

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
    record.id = readString([&](char *buffer, unsigned &size) { return camera.GetID(buffer, size, true); });
    record.model = readString([&](char *buffer, unsigned &size) { return camera.GetModel(buffer, size); });
    record.serialNumber
        = readString([&](char *buffer, unsigned &size) { return camera.GetSerialNumber(buffer, size); });
    record.userName
        = readString([&](char *buffer, unsigned &size) { return camera.GetUserName(buffer, size); });
    if (!device.ReadString("DeviceVendorName", record.vendor))
        record.vendor.clear();
    record.settingsTime = utcNow();
    record.settings = readSettings(device);
    return record;
}
