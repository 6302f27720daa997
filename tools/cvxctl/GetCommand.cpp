#include "tools/cvxctl/CameraSession.h"
#include "tools/cvxctl/Commands.h"
#include "tools/cvxctl/Terminal.h"
#include "tools/cvxctl/ValueText.h"

#include <cstdio>

using namespace CvxCPP;

namespace {

struct GetOptions
{
    std::string camera;
    std::vector<std::string> names;
    bool isJson = false;
};

ExitStatus run(const GetOptions &options)
{
    CameraSession session;
    if (const ExitStatus status = session.open(options.camera, CvxAccessWatch))
        return status;
    nlohmann::ordered_json json;
    for (const std::string &name : options.names) {
        NodeValue value;
        if (const CvxResult result = session.device().Read(name, value); !result)
            return reportFailure(result);
        json[name] = valueJson(value);
        if (options.isJson)
            continue;
        const std::string text = printable(valueText(value, NodeRepresentation::Undefined));
        if (options.names.size() == 1)
            std::printf("%s\n", text.c_str());
        else
            std::printf("%s=%s\n", name.c_str(), text.c_str());
    }
    if (options.isJson)
        printJson(json);
    return exitSuccess;
}

} // namespace

void addGetCommand(CLI::App &program, ExitStatus &status)
{
    const auto options = std::make_shared<GetOptions>();
    CLI::App *const command = program.add_subcommand("get",
        "Print the values of features: the value of one feature, or a line NAME=VALUE for each of several");
    command->add_option("CAMERA", options->camera, cameraHelp)->required();
    command->add_option("NAME", options->names, "Names of features")->required();
    command->add_flag("--json", options->isJson, "Print JSON");
    command->callback([options, &status] { status = run(*options); });
}
