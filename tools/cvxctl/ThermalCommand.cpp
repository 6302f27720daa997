#include "sdk/imagefile/OutputFile.h"
#include "sdk/imagefile/Sidecar.h"
#include "tools/cvxctl/CameraSession.h"
#include "tools/cvxctl/Commands.h"
#include "tools/cvxctl/Terminal.h"
#include "tools/cvxctl/ThermalRun.h"
#include "tools/kit/measure/thermal/ThermalResult.h"

#include <algorithm>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <filesystem>

using namespace CvxCPP;

namespace {

std::string durationText(double seconds)
{
    constexpr int perMinute = 60;
    const int whole = static_cast<int>(std::lround(std::min(seconds, 1e8)));
    char text[32];
    std::snprintf(text, sizeof text, "%d:%02d", whole / perMinute, whole % perMinute);
    return text;
}

std::vector<std::string> tableRow(const PlaceMonitor &place)
{
    const PlaceReport &report = place.report();
    const auto &slope = report.slope;
    const auto &forecast = report.forecast;
    return {placeName(place.place()), report.celsius ? decimals(*report.celsius, 2) : "-",
        slope ? decimals(slope->perMinute, 3) + " +- " + decimals(slope->error, 3) : "-",
        forecast ? decimals(forecast->end, 2) + " +- " + decimals(forecast->endError, 2) : "-",
        forecast ? decimals(forecast->timeConstant, 0) + " s" : "-",
        report.secondsToSteady ? durationText(*report.secondsToSteady) : "-", stateName(report.state)};
}

void printDark(const DarkSeries &dark)
{
    if (dark.levels().isEmpty())
        return;
    std::printf("\ndark level %.4f", dark.levels().newest().mean);
    if (const auto noise = dark.noise())
        std::printf(" +- %.4f", *noise);
    if (const auto followed = dark.followedAt())
        std::printf(", followed the temperature from %.0f s on", *followed);
    if (const auto doubling = dark.doubling())
        std::printf(", doubles every %.2f +- %.2f K (%.1f to %.1f degC)", doubling->kelvin, doubling->error,
            doubling->lowest, doubling->highest);
    else
        std::printf("; the doubling temperature is not determined");
    std::printf("\n");
}

ExitStatus writeFiles(const std::string &path, const CameraRecord &camera, const ThermalMonitor &monitor)
{
    const std::string csv = thermalCsv(monitor);
    const std::string csvPath = std::filesystem::path(path).replace_extension(".csv").string();
    std::string problem = writeSidecar(path, thermalDocument(camera, monitor));
    OutputFile table;
    if (problem.empty()
        && !(table.createHidden(csvPath) && table.append(csv.data(), csv.size()) && table.publish()))
        problem = table.problem();
    if (problem.empty())
        return exitSuccess;
    printError(problem);
    return exitFailure;
}

ExitStatus finish(const ThermalRun &run, const CameraRecord &camera, const ThermalOptions &options)
{
    const ThermalMonitor &monitor = run.monitor();
    if (options.isJson) {
        nlohmann::ordered_json document = thermalDocument(camera, monitor);
        document.erase("history");
        printJson(document);
    } else {
        std::vector<std::vector<std::string>> rows{
            {"PLACE", "DEGC", "K/MIN", "FINAL DEGC", "TIME CONSTANT", "STEADY IN", "STATE"}};
        for (const PlaceMonitor &place : monitor.places())
            rows.push_back(tableRow(place));
        printTable(rows);
        printDark(monitor.dark());
    }
    if (!options.output.empty()) {
        if (const ExitStatus status = writeFiles(options.output, camera, monitor))
            return status;
    }
    if (monitor.isLost())
        return exitLost;
    return run.isComplete() ? exitSuccess : exitInterrupted;
}

/// Monitors a camera without images; another program may control the camera.
ExitStatus monitorOnly(const ThermalOptions &options)
{
    CameraSession session;
    if (const ExitStatus status = session.openToRead(options.measure.camera))
        return status;
    ThermalRun run(session.device(), nullptr, options);
    if (const Sentence problem = run.run(); !problem.isEmpty()) {
        printError(toEnglish(problem));
        return exitFeature;
    }
    return finish(run, readCameraRecord(*session.camera().camera, session.device()), options);
}

/// Monitors a camera that sends images meanwhile.
ExitStatus monitorWithImages(const ThermalOptions &options)
{
    std::optional<ExitStatus> finished;
    const ExitStatus status = runMeasurement(
        options.measure, [&](const MeasureContext &context, const CameraRecord &camera) -> Sentence {
            ThermalRun run(context.device, &context.frames, options);
            Sentence problem = run.run();
            if (problem.isEmpty())
                finished = finish(run, camera, options);
            return problem;
        });
    // Ctrl-C is a usual end.
    const bool hasEnded = status == exitSuccess || status == exitInterrupted;
    return hasEnded ? finished.value_or(status) : status;
}

ExitStatus runThermal(const ThermalOptions &options)
{
    for (const int signal : {SIGXFSZ, SIGPIPE}) // The log reports the write that has failed.
        std::signal(signal, SIG_IGN);
    const bool needsImages = options.isStreaming || options.isDark || !options.measure.assignments.empty();
    return needsImages ? monitorWithImages(options) : monitorOnly(options);
}

} // namespace

void addThermalCommand(CLI::App &program, ExitStatus &status)
{
    const auto options = std::make_shared<ThermalOptions>();
    CLI::App *const command = program.add_subcommand("thermal",
        "Read all temperatures of a camera until --seconds, --until-steady or Ctrl-C, then print rate, "
        "expected "
        "final value and time to steady. The final value is printed once the readings determine it. Without "
        "--stream, --dark and --set, no image is taken, and another program may use the camera");
    addMeasureOptions(*command, options->measure);
    command->add_option("--interval", options->interval, "Seconds between two readings")
        ->check(CLI::Range(0.2, 3600.0))
        ->capture_default_str();
    command->add_option("--seconds", options->seconds, "End after this time")->check(CLI::PositiveNumber);
    command->add_flag("--until-steady", options->isUntilSteady,
        "End when all temperatures are within 0.5 K of their final values or change by less than 0.1 K/min");
    command->add_option("--log", options->log,
        "CSV file to which each reading is appended at once. A log of the same camera is continued");
    command->add_option("--output", options->output,
        "JSON file for the result and the readings at the end, with a CSV file of the same name");
    command->add_option("--warning", options->warning, "Temperature in degC that is reported");
    command->add_option("--alarm", options->alarm, "Higher temperature in degC that is reported");
    command->add_option("--hysteresis", options->hysteresis, "Kelvin below a threshold at which it ends")
        ->check(CLI::NonNegativeNumber)
        ->capture_default_str();
    command->add_flag("--stream", options->isStreaming, "Take images meanwhile, so that the camera works");
    command->add_flag("--dark", options->isDark,
        "Measure the dark level of the images, too; the lens has to be covered. Long exposures show the dark "
        "current, for example --set ExposureTime=500000");
    command->add_flag("--json", options->isJson, "Print the result as JSON");
    command->callback([options, &status] { status = runThermal(*options); });
}
