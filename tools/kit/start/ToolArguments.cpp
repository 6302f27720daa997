#include "tools/kit/start/ToolArguments.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <QtGlobal>

#include <string>

namespace {

constexpr char cameraVariable[] = "CORVIX_CAMERA";
constexpr int usageError = 2;

} // namespace

ToolArguments::ToolArguments(const ToolProgram &program, int argc, const char *const *argv)
{
    const std::string name = program.name.toStdString();
    std::string camera;
    CLI::App parser(program.description.toStdString(), name);
    parser.set_version_flag("--version", name + ' ' + program.version.toStdString(), "Print the version");
    parser
        .add_option("CAMERA", camera,
            "ID, serial number, user name or model of the camera, or a part of it; the environment variable "
            "CORVIX_CAMERA if it is left out")
        ->option_text(" ");
    try {
        parser.parse(argc, argv);
    } catch (const CLI::ParseError &end) { // Also thrown after --help and --version.
        m_exitStatus = parser.exit(end) == 0 ? 0 : usageError;
        return;
    }
    m_camera = camera.empty() ? qEnvironmentVariable(cameraVariable) : QString::fromStdString(camera);
}
