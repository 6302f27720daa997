#include "tools/cvxctl/CameraSession.h"
#include "tools/cvxctl/Commands.h"
#include "tools/cvxctl/Interruption.h"
#include "tools/cvxctl/Terminal.h"

#include <chrono>
#include <thread>

using namespace CvxCPP;

namespace {

struct RunOptions
{
    std::string camera;
    std::string name;
    double timeout = 10; // Seconds.
};

ExitStatus run(const RunOptions &options)
{
    CameraSession session;
    if (const ExitStatus status = session.open(options.camera, CvxAccessControl))
        return status;
    if (const CvxResult result = session.device().Execute(options.name); !result)
        return reportFailure(result);
    constexpr std::chrono::milliseconds interval{20};
    const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(options.timeout);
    for (;;) {
        std::vector<NodeState> states;
        const CvxResult result = session.device().ReadStates({options.name}, states);
        if (result.code == CvxErrorDeviceLost)
            return exitSuccess; // A command like "DeviceReset" ends the connection.
        if (!result)
            return reportFailure(result);
        if (states.at(0).isCommandDone)
            return exitSuccess;
        if (isInterrupted())
            return exitInterrupted;
        if (std::chrono::steady_clock::now() >= end) {
            printError("the command \"" + options.name + "\" is not done yet");
            return exitLost;
        }
        std::this_thread::sleep_for(interval);
    }
}

} // namespace

void addRunCommand(CLI::App &program, ExitStatus &status)
{
    const auto options = std::make_shared<RunOptions>();
    CLI::App *const command
        = program.add_subcommand("run", "Execute a command of the camera and wait until it is done");
    command->add_option("CAMERA", options->camera, cameraHelp)->required();
    command->add_option("NAME", options->name, "Name of the command")->required();
    command->add_option("--timeout", options->timeout, "Seconds to wait")
        ->check(CLI::Range(0.0, 3600.0))
        ->capture_default_str();
    command->callback([options, &status] { status = run(*options); });
}
