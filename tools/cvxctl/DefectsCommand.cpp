#include "sdk/imagefile/DefectMapFile.h"
#include "tools/cvxctl/Assignment.h"
#include "tools/cvxctl/Commands.h"
#include "tools/cvxctl/MeasureRun.h"
#include "tools/cvxctl/Terminal.h"
#include "tools/kit/measure/defects/DefectFinder.h"
#include "tools/kit/measure/defects/DefectJson.h"

#include <cstdio>

namespace {

struct DefectsOptions
{
    MeasureOptions measure;
    std::string file;
    std::string csvFile;
    std::vector<std::string> darkAssignments;
    std::vector<std::string> brightAssignments;
    std::size_t images = 16;
    double threshold = usualThreshold;
    bool isJson = false;
};

/// What was measured.
struct DefectsResult
{
    DefectImages dark;
    DefectImages bright;
    DefectFindings findings;
    CameraRecord camera;
    ExitStatus preparation = exitSuccess; // Failure of the person or of a setting; the error was printed.
};

/// Writes settings, or asks the person if there are none. Prints an error on failure.
bool prepareDefectImages(const MeasureContext &context, const std::vector<std::string> &assignments,
    const char *request, const char *option, ExitStatus &status)
{
    status = assignments.empty() ? askPerson(request, option) : writeAssignments(context.device, assignments);
    return status == exitSuccess;
}

/// Returns no problem if the preparation has failed, because its error was printed.
Sentence measureDefects(const DefectsOptions &options, const MeasureContext &context, DefectsResult &result)
{
    if (!prepareDefectImages(context, options.darkAssignments,
            "Cover the lens, so that no light reaches the sensor.", "--dark-set", result.preparation))
        return {};
    if (Sentence problem = takeDarkImages(context, options.images, result.dark); !problem.isEmpty())
        return problem;
    if (!prepareDefectImages(context, options.brightAssignments, "Point the camera at an evenly lit surface.",
            "--bright-set", result.preparation))
        return {};
    if (Sentence problem = takeBrightImages(context, options.images, result.dark, result.bright);
        !problem.isEmpty())
        return problem;
    return examinePixels(result.dark, result.bright, context.progress, result.findings);
}

void printDefects(const DefectMap &map, const DefectsResult &result, double threshold)
{
    const std::vector<DefectGroup> groups = defectGroups(map);
    const DefectCounts counts = countDefects(map, groups);
    std::vector<std::vector<std::string>> rows;
    for (std::size_t i = 0; i < counts.byKind.size(); ++i)
        rows.push_back({defectKindText(static_cast<DefectKind>(i)), std::to_string(counts.byKind[i])});
    rows.push_back({"all defect pixels", std::to_string(counts.pixels)});
    rows.push_back({"clusters", std::to_string(counts.clusters)});
    rows.push_back({"columns", std::to_string(counts.columns)});
    rows.push_back({"lines", std::to_string(counts.lines)});
    printTable(rows);
    std::printf("%zu pixels were examined; the threshold is %g standard deviations.\n",
        result.findings.examinedPixels, threshold);
    for (const std::string &name : result.dark.cameraCorrections)
        std::printf("%s was off during the measurement.\n", printable(name).c_str());
}

ExitStatus writeDefects(const DefectsOptions &options, const DefectsResult &result)
{
    const DefectMap map = defectMap(result.findings, options.threshold);
    const nlohmann::ordered_json numbers
        = toJson(result.dark, result.bright, result.findings, options.threshold);
    std::string problem = writeDefectMapJson(options.file, map, result.camera, {{"measurement", numbers}});
    if (problem.empty() && !options.csvFile.empty())
        problem = writeDefectMapCsv(options.csvFile, map);
    if (!problem.empty()) {
        printError(problem);
        return exitFailure;
    }
    if (options.isJson)
        printJson(numbers);
    else
        printDefects(map, result, options.threshold);
    return exitSuccess;
}

ExitStatus runDefects(const DefectsOptions &options)
{
    DefectsResult result;
    const ExitStatus status
        = runMeasurement(options.measure, [&](const MeasureContext &context, const CameraRecord &camera) {
              result.camera = camera;
              return measureDefects(options, context, result);
          });
    if (result.preparation != exitSuccess)
        return result.preparation;
    return status == exitSuccess ? writeDefects(options, result) : status;
}

} // namespace

void addDefectsCommand(CLI::App &program, ExitStatus &status)
{
    const auto options = std::make_shared<DefectsOptions>();
    CLI::App *const command = program.add_subcommand("defects",
        "Find hot, dead, stuck, blinking and deviating pixels in dark and bright images, and write a map of "
        "them. A longer exposure of the dark images shows more hot pixels. Settings that the measurement "
        "changes are put back");
    addMeasureOptions(*command, options->measure);
    command
        ->add_option("MAP", options->file, "Name of the JSON file of the map, which is replaced if it exists")
        ->required();
    command->add_option("--csv", options->csvFile, "Also write the map as a CSV file of this name");
    command->add_option("--images", options->images, "Number of dark and of bright images")
        ->check(CLI::Range(minDefectImages, std::size_t{1000}))
        ->capture_default_str();
    command
        ->add_option("--dark-set", options->darkAssignments,
            "Write a feature before the dark images instead of asking to cover the lens, for example "
            "ExposureTime=100000; may be given several times")
        ->check(checkAssignment)
        ->type_name("NAME=VALUE");
    command
        ->add_option("--bright-set", options->brightAssignments,
            "Write a feature before the bright images instead of asking for an evenly lit surface; may be "
            "given "
            "several times")
        ->check(checkAssignment)
        ->type_name("NAME=VALUE");
    command
        ->add_option("--threshold", options->threshold,
            "Deviation from the neighbours that makes a pixel a defect, in standard deviations of the good "
            "pixels")
        ->check(CLI::Range(smallestThreshold, 1000.0))
        ->capture_default_str();
    command->add_flag("--json", options->isJson, "Print conditions, noise and counts as JSON");
    command->callback([options, &status] { status = runDefects(*options); });
}
