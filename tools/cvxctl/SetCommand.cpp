#include "tools/cvxctl/Assignment.h"
#include "tools/cvxctl/CameraSession.h"
#include "tools/cvxctl/Commands.h"
#include "tools/cvxctl/Terminal.h"
#include "tools/cvxctl/ValueText.h"

#include <cstdio>

using namespace CvxCPP;

namespace {

struct SetOptions
{
    std::string camera;
    std::vector<std::string> assignments;
    bool isJson = false;
};

ExitStatus run(const SetOptions &options)
{
    CameraSession session;
    if (const ExitStatus status = session.open(options.camera, CvxAccessControl))
        return status;
    nlohmann::ordered_json json;
    for (const std::string &assignment : options.assignments) {
        const std::string name = assignedName(assignment);
        if (const ExitStatus status = writeAssignment(session.device(), assignment))
            return status;
        // The camera may have made something else of the value.
        NodeValue value;
        if (!session.device().Read(name, value))
            continue; // The feature can only be written.
        json[name] = valueJson(value);
        if (!options.isJson)
            std::printf(
                "%s=%s\n", name.c_str(), printable(valueText(value, NodeRepresentation::Undefined)).c_str());
    }
    if (options.isJson)
        printJson(json);
    return exitSuccess;
}

} // namespace

void addSetCommand(CLI::App &program, ExitStatus &status)
{
    const auto options = std::make_shared<SetOptions>();
    CLI::App *const command = program.add_subcommand("set",
        "Write features in the given order, and print what the camera made of each value. Ends at the first "
        "failure");
    command->add_option("CAMERA", options->camera, cameraHelp)->required();
    command->add_option("NAME=VALUE", options->assignments, "Names of features with their values")
        ->required()
        ->check(checkAssignment);
    command->add_flag("--json", options->isJson, "Print JSON");
    command->callback([options, &status] { status = run(*options); });
}
