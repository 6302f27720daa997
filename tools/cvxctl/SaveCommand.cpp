#include "sdk/features/FeatureFileStorage.h"
#include "sdk/features/FeatureSaver.h"
#include "tools/cvxctl/Commands.h"
#include "tools/cvxctl/SettingsText.h"
#include "tools/cvxctl/Terminal.h"

#include <cstdio>

using namespace CvxCPP;

namespace {

struct SaveOptions
{
    std::string camera;
    std::string file;
};

ExitStatus run(const SaveOptions &options)
{
    CameraSession session;
    if (const ExitStatus status = session.openToRead(options.camera))
        return status;
    SavedFeatures saved;
    if (const CvxResult result = saveFeatures(session.device(), saved, continueUnlessInterrupted); !result)
        return reportFailure(result);
    if (saved.isCancelled)
        return exitInterrupted;
    printNotes(saved.notes);
    if (saved.settings.empty()) {
        printError("the camera has no features that belong into a settings file");
        return exitFeature;
    }
    const CameraNames &names = session.camera().names;
    const std::string text = formatFeatureFile(saved.settings, names.model + " (" + names.serial + ')');
    if (const std::string problem = writeFeatureFile(options.file, text); !problem.empty()) {
        printError(problem);
        return exitFailure;
    }
    std::printf("%zu settings saved\n", saved.settings.size());
    return exitSuccess;
}

} // namespace

void addSaveCommand(CLI::App &program, ExitStatus &status)
{
    const auto options = std::make_shared<SaveOptions>();
    CLI::App *const command = program.add_subcommand("save",
        "Save the settings of a camera in the text format that all GenICam programs read. If another program "
        "uses the camera, only the present values of the selectors are saved");
    command->add_option("CAMERA", options->camera, cameraHelp)->required();
    command->add_option("FILE", options->file, "Name of the file, which is replaced if it exists")
        ->required();
    command->callback([options, &status] { status = run(*options); });
}
