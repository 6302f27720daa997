#include "sdk/imagefile/Sidecar.h"
#include "tools/cvxctl/Assignment.h"
#include "tools/cvxctl/Commands.h"
#include "tools/cvxctl/MeasureRun.h"
#include "tools/cvxctl/Terminal.h"
#include "tools/kit/measure/flatfield/FlatFieldDocument.h"
#include "tools/kit/measure/flatfield/FlatFieldMeasurement.h"

#include <cstdio>
#include <unistd.h>

namespace {

struct FlatFieldCommandOptions
{
    MeasureOptions measure;
    FlatFieldOptions field;
    std::string file;
    std::vector<std::string> darkSets;
    std::vector<std::string> brightSets;
    bool isSmooth = false;
    bool isBrightest = false;
    bool isJson = false;
};

constexpr char coverRequest[] = "Cover the lens of the camera completely.";
constexpr char surfaceRequest[]
    = "Uncover the lens, and point the camera at an evenly lit surface, out of focus.";
constexpr char settingOptions[] = "--dark-set and --bright-set";

std::string fixedText(double value, int decimals)
{
    char text[64];
    std::snprintf(text, sizeof text, "%.*f", decimals, value);
    return text;
}

std::string electronsText(const std::optional<double> &electrons)
{
    return electrons ? fixedText(*electrons, 2) : "-";
}

void printNumbers(const FlatFieldResult &result)
{
    constexpr double percent = 100;
    const Uniformity &before = result.before;
    const Uniformity &after = result.after;
    const auto share = [](double value) { return fixedText(value * percent, 2) + " %"; };
    printTable({{"", "before", "after"}, {"Shading", share(before.shading), share(after.shading)},
        {"PRNU1288", share(before.prnu), share(after.prnu)},
        {"PRNU1288 without shading", share(before.pixelPrnu), share(after.pixelPrnu)},
        {"DSNU1288", fixedText(before.dsnu, 2) + " DN", fixedText(after.dsnu, 2) + " DN"},
        {"DSNU1288 in electrons", electronsText(before.dsnuElectrons), electronsText(after.dsnuElectrons)}});
    std::printf("\n%s; bright images at %s of the range, gains %s to %s, defect pixels: %u\n",
        result.pixelFormat.c_str(), share(result.brightShare).c_str(),
        fixedText(result.built.lowestGain, 2).c_str(), fixedText(result.built.highestGain, 2).c_str(),
        result.built.defectPixels);
}

/// Lets the camera look at what a step needs: by its settings, or by asking the person.
ExitStatus prepareStep(
    CvxCPP::Device &device, const std::vector<std::string> &assignments, const char *request)
{
    return assignments.empty() ? askPerson(request, settingOptions) : writeAssignments(device, assignments);
}

ExitStatus writeAndPrint(
    const FlatFieldCommandOptions &options, const FlatFieldResult &result, const CameraRecord &camera)
{
    const nlohmann::ordered_json document = flatFieldDocument(result, camera);
    std::string problem = writeFlatFieldResult(options.file, result, camera);
    if (problem.empty())
        problem = writeSidecar(sidecarPath(options.file), document);
    if (!problem.empty()) {
        printError(problem);
        return exitFailure;
    }
    for (const Sentence &warning : result.warnings)
        std::fprintf(stderr, "cvxctl: warning: %s\n", printable(toEnglish(warning)).c_str());
    if (options.isJson)
        printJson(document);
    else
        printNumbers(result);
    return exitSuccess;
}

ExitStatus runFlatField(const FlatFieldCommandOptions &options)
{
    const bool asks = options.darkSets.empty() || options.brightSets.empty();
    if (asks && isatty(STDIN_FILENO) == 0)
        return askPerson(coverRequest, settingOptions); // Reports that nobody can be asked.
    FlatFieldMeasurement measurement(options.field);
    ExitStatus stepStatus = exitSuccess; // Status of preparing the steps; a failure has been reported.
    CameraRecord record;
    const ExitStatus status
        = runMeasurement(options.measure, [&](const MeasureContext &context, const CameraRecord &camera) {
              record = camera;
              stepStatus = prepareStep(context.device, options.darkSets, coverRequest);
              if (stepStatus != exitSuccess)
                  return cancelledSentence();
              if (const Sentence problem = measurement.takeDark(context); !problem.isEmpty())
                  return problem;
              stepStatus = prepareStep(context.device, options.brightSets, surfaceRequest);
              if (stepStatus != exitSuccess)
                  return cancelledSentence();
              return measurement.takeBright(context);
          });
    if (stepStatus != exitSuccess || status != exitSuccess)
        return stepStatus != exitSuccess ? stepStatus : status;
    return writeAndPrint(options, *measurement.result(), record);
}

} // namespace

void addFlatFieldCommand(CLI::App &program, ExitStatus &status)
{
    const auto options = std::make_shared<FlatFieldCommandOptions>();
    CLI::App *const command = program.add_subcommand("flatfield",
        "Measure the shading and the differences between the pixels of a camera, and write their correction. "
        "Takes images with the lens covered, then of an evenly lit surface at 50 to 80 % of the range. "
        "FILE is a TIFF image with the offset and the gain of each pixel as 32-bit numbers; FILE.json "
        "contains the non-uniformity before and after by EMVA 1288. Settings that were changed are put back");
    addMeasureOptions(*command, options->measure);
    command->add_option("FILE", options->file, "Name of the TIFF file, which is replaced if it exists")
        ->required();
    command->add_option("--images", options->field.images, "Dark images, and bright images, to be averaged")
        ->check(CLI::Range(minReferenceImages, std::size_t(1024)))
        ->capture_default_str();
    command
        ->add_option("--dark-set", options->darkSets,
            "NAME=VALUE: setting for the dark images, instead of asking to cover the lens")
        ->check(checkAssignment);
    command
        ->add_option("--bright-set", options->brightSets,
            "NAME=VALUE: setting for the bright images, instead of asking for a bright surface")
        ->check(checkAssignment);
    command->add_flag("--expose", options->field.setsExposure,
        "Set the exposure time of the bright images to about 70 % of the range");
    command->add_flag("--smooth", options->isSmooth,
        "Correct only the shading, not the sensitivity of each pixel; adds no noise");
    command->add_flag("--keep-white", options->isBrightest,
        "Raise everything to the level of the brightest place, so clipped pixels stay clipped; by default, "
        "the mean brightness stays");
    command->add_flag("--json", options->isJson, "Print the content of FILE.json");
    command->callback([options, &status] {
        options->field.detail = options->isSmooth ? GainDetail::ShadingOnly : GainDetail::EveryPixel;
        options->field.level = options->isBrightest ? GainLevel::Brightest : GainLevel::Mean;
        status = runFlatField(*options);
    });
}
