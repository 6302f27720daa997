#include "sdk/features/FeatureLoader.h"
#include "tools/cvxctl/Commands.h"
#include "tools/cvxctl/SettingsText.h"
#include "tools/cvxctl/Terminal.h"

#include <cstdio>

using namespace CvxCPP;

namespace {

struct LoadOptions
{
    std::string camera;
    std::string file;
    bool isAllOrNothing = false;
    bool isDryRun = false;
    bool isJson = false;
};

constexpr const char *outcomeNames[] = {"unchanged", "changed", "overruled", "failed"};

nlohmann::ordered_json toJson(const FeatureFile &file, const LoadReport &report)
{
    nlohmann::ordered_json json{{"applied", report.isApplied}, {"restored", report.isRestored}};
    auto &changes = json["settings"] = nlohmann::ordered_json::array();
    for (const FeatureChange &change : report.changes) {
        changes.push_back({{"line", change.setting.line}, {"name", change.setting.name},
            {"selectors", selectorsJson(change.setting.selectors)}, {"wanted", change.setting.value},
            {"before", change.before}, {"after", change.after},
            {"outcome", outcomeNames[static_cast<std::size_t>(change.outcome)]}, {"reason", change.reason}});
    }
    auto &problems = json["problems"] = nlohmann::ordered_json::array();
    for (const FeatureFileProblem &problem : file.problems)
        problems.push_back({{"line", problem.line}, {"text", problem.text}});
    auto &notes = json["notes"] = nlohmann::ordered_json::array();
    for (const FeatureNote &note : report.notes)
        notes.push_back(note.text);
    return json;
}

void printChange(const FeatureChange &change)
{
    const std::string label = printableLabel(change.setting.name, change.setting.selectors);
    if (change.outcome == FeatureOutcome::Changed)
        std::printf("%s: %s -> %s\n", label.c_str(), printable(change.before).c_str(),
            printable(change.after.empty() ? change.setting.value : change.after).c_str());
    else if (change.outcome == FeatureOutcome::Overruled)
        std::printf("%s: left at %s. %s\n", label.c_str(), printable(change.before).c_str(),
            printable(change.reason).c_str());
}

/// Prints one line for each failure. Settings whose selector cannot be set have one failure in common.
void printFailures(const LoadReport &report, const std::string &file)
{
    const FeatureChange *previous = nullptr;
    for (const FeatureChange &change : report.changes) {
        if (change.outcome != FeatureOutcome::Failed)
            continue;
        const bool isSame = previous && previous->reason == change.reason && !change.setting.selectors.empty()
            && previous->setting.selectors == change.setting.selectors;
        if (!isSame)
            printError(file + ':' + std::to_string(change.setting.line) + ": "
                + printableLabel(change.setting.name, change.setting.selectors) + ": " + change.reason);
        previous = &change;
    }
}

void printReport(const LoadReport &report, const LoadOptions &options)
{
    const bool isPlan = !report.isApplied;
    if (!report.isRestored && (report.isApplied || options.isDryRun)) {
        for (const FeatureChange &change : report.changes)
            printChange(change);
    }
    printFailures(report, options.file);
    printNotes(report.notes);
    if (report.isRestored)
        std::printf("The previous settings were restored.\n");
    else if (isPlan && !options.isDryRun)
        std::printf("Nothing was changed.\n");
    std::printf("%zu changed, %zu unchanged, %zu overruled, %zu failed\n",
        report.isRestored || (isPlan && !options.isDryRun) ? 0 : report.count(FeatureOutcome::Changed),
        report.count(FeatureOutcome::Unchanged), report.count(FeatureOutcome::Overruled),
        report.count(FeatureOutcome::Failed));
}

ExitStatus run(const LoadOptions &options)
{
    FeatureFile file;
    if (const ExitStatus status = readSettings(options.file, file))
        return status;
    CameraSession session;
    if (const ExitStatus status = session.open(options.camera, CvxAccessControl))
        return status;
    const auto load = options.isDryRun ? planFeatures
        : options.isAllOrNothing       ? loadAllFeatures
                                       : loadFeatures;
    LoadReport report;
    if (const CvxResult result = load(session.device(), file, report, continueUnlessInterrupted); !result)
        return reportFailure(result);
    if (options.isJson)
        printJson(toJson(file, report));
    else
        printReport(report, options);
    if (report.isCancelled)
        return exitInterrupted;
    const bool isComplete
        = file.problems.empty() && report.notes.empty() && report.count(FeatureOutcome::Failed) == 0;
    return isComplete ? exitSuccess : exitFeature;
}

} // namespace

void addLoadCommand(CLI::App &program, ExitStatus &status)
{
    const auto options = std::make_shared<LoadOptions>();
    CLI::App *const command = program.add_subcommand("load",
        "Load a settings file into a camera, read everything back, and print what has changed. Exit status 7 "
        "means that some settings could not be loaded");
    command->add_option("CAMERA", options->camera, cameraHelp)->required();
    command->add_option("FILE", options->file, "Settings file of \"cvxctl save\" or of another program")
        ->required();
    CLI::Option *const all = command->add_flag("--all-or-nothing", options->isAllOrNothing,
        "Restore the previous settings if one setting cannot be loaded");
    command->add_flag("--dry-run", options->isDryRun, "Only print what would change")->excludes(all);
    command->add_flag("--json", options->isJson, "Print JSON");
    command->callback([options, &status] { status = run(*options); });
}
