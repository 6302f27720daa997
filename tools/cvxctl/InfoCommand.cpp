#include "tools/cvxctl/CameraSession.h"
#include "tools/cvxctl/Commands.h"
#include "tools/cvxctl/Terminal.h"

using namespace CvxCPP;

namespace {

struct InfoOptions
{
    std::string camera;
    bool isJson = false;
};

/// The features that most people want to know first; a camera need not have them.
constexpr const char *features[] = {"DeviceVendorName", "DeviceModelName", "DeviceSerialNumber",
    "DeviceUserID", "DeviceVersion", "DeviceFirmwareVersion", "DeviceScanType", "SensorWidth", "SensorHeight",
    "Width", "Height", "OffsetX", "OffsetY", "PixelFormat", "ExposureTime", "Gain", "AcquisitionFrameRate",
    "TriggerMode", "DeviceTemperature", "PayloadSize"};

ExitStatus run(const InfoOptions &options)
{
    CameraSession session;
    if (const ExitStatus status = session.open(options.camera, CvxAccessWatch))
        return status;
    const CameraNames &names = session.camera().names;
    nlohmann::ordered_json json{
        {"id", names.id}, {"extendedId", names.extendedId}, {"type", session.camera().type}};
    std::vector<NodeInfo> nodes;
    if (const CvxResult result = session.device().GetNodes(nodes); !result)
        return reportFailure(result);
    for (const char *name : features) {
        std::string text; // A camera without the feature, or in which it is not available, has no line.
        if (session.device().ReadText(name, text))
            json[name] = text;
    }
    json["features"] = std::to_string(nodes.size());
    if (options.isJson) {
        printJson(json);
        return exitSuccess;
    }
    std::vector<std::vector<std::string>> rows;
    for (const auto &[key, value] : json.items())
        rows.push_back({key, printable(value.get<std::string>())});
    printTable(rows);
    return exitSuccess;
}

} // namespace

void addInfoCommand(CLI::App &program, ExitStatus &status)
{
    const auto options = std::make_shared<InfoOptions>();
    CLI::App *const command = program.add_subcommand("info", "Show the most important data of a camera");
    command->add_option("CAMERA", options->camera, cameraHelp)->required();
    command->add_flag("--json", options->isJson, "Print JSON");
    command->callback([options, &status] { status = run(*options); });
}
