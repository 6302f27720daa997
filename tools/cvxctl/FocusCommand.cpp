#include "sdk/imagefile/Sidecar.h"
#include "tools/cvxctl/Commands.h"
#include "tools/cvxctl/MeasureRun.h"
#include "tools/cvxctl/Terminal.h"
#include "tools/kit/measure/focus/FocusHistory.h"
#include "tools/kit/measure/focus/FocusResult.h"
#include "tools/kit/measure/focus/FocusSweep.h"
#include "tools/kit/measure/focus/FocusText.h"

#include <algorithm>
#include <cstdio>
#include <limits>

namespace {

struct FocusCommandOptions
{
    MeasureOptions measure;
    int grid = 5;
    double seconds = 0; // Duration of a turn by hand; 0 measures one image.
    unsigned settle = 100; // Milliseconds.
    double blackLevel = -1; // Percent; negative: as the camera says.
    std::string file;
    std::string csvFile;
    bool isSweep = false;
    bool isJson = false;
};

/// What was measured.
struct FocusRun
{
    FocusResult result;
    CameraRecord camera;
};

FocusOptions focusOptions(const FocusCommandOptions &options, CvxCPP::Device &device)
{
    constexpr double percent = 100;
    FocusOptions focus;
    focus.isLineScan = readIsLineScan(device);
    focus.grid = {options.grid, focus.isLineScan ? 1 : options.grid};
    focus.blackLevel = options.blackLevel < 0 ? readBlackLevel(device) : options.blackLevel / percent;
    return focus;
}

/// Measures the images of a time, during which a person turns the lens; or one image.
Sentence measureTurn(
    const MeasureContext &context, const FocusOptions &focus, double seconds, FocusResult &result)
{
    using Clock = std::chrono::steady_clock;
    FocusMeter meter;
    FocusHistory history;
    const Clock::time_point start = Clock::now();
    const auto now = [start] { return std::chrono::duration<double>(Clock::now() - start).count(); };
    const auto steps = static_cast<std::size_t>(seconds) + 1;
    const MeasureProgress progress = [&](std::size_t, std::size_t) {
        return context.progress(std::min(static_cast<std::size_t>(now()), steps - 1), steps);
    };
    const double interval = seconds / FocusHistory::maxSamples; // The history holds the whole turn.
    double next = 0;
    bool isOver = false;
    const auto take = [&](const CvxCPP::Image &image) -> Sentence {
        if (now() < next)
            return {};
        next = now() + interval;
        if (Sentence problem = meter.measure(rawImage(image), focus, result.last); !problem.isEmpty())
            return problem;
        history.add(now(), result.last);
        isOver = now() >= seconds;
        return isOver ? untranslated("The time is over.") : Sentence{}; // Ends the loop; is not shown.
    };
    const std::size_t count = seconds > 0 ? std::numeric_limits<std::size_t>::max() : 1;
    const Sentence ended
        = takeImages({context.device, context.frames, progress}, count, usualImageLimit, take);
    if (!ended.isEmpty() && !isOver)
        return ended;
    result.samples.assign(history.samples().begin(), history.samples().end());
    if (seconds <= 0)
        return {};
    result.peak = history.peak();
    for (std::size_t i = 0; i < result.last.regions.size(); ++i)
        result.regionShares.push_back(history.regionShare(i));
    result.analysis = analyseFocus(history.lastTurn());
    return history.samples().empty() ? result.last.problem : Sentence{};
}

Sentence measureSweep(const MeasureContext &context, const FocusOptions &focus,
    const FocusCommandOptions &options, FocusResult &result)
{
    SweepOptions sweep;
    sweep.focus = focus;
    sweep.settle = std::chrono::milliseconds(options.settle);
    SweepResult found;
    if (Sentence problem = sweepFocus(context, sweep, found); !problem.isEmpty())
        return problem;
    result = focusResult(found);
    if (!options.measure.keepsChanges)
        result.position = found.startPosition; // The lens is put back.
    return {};
}

Sentence measureFocus(const FocusCommandOptions &options, const MeasureContext &context, FocusResult &result)
{
    const FocusOptions focus = focusOptions(options, context.device);
    if (options.isSweep)
        return measureSweep(context, focus, options, result);
    if (Sentence problem = measureTurn(context, focus, options.seconds, result); !problem.isEmpty())
        return problem;
    if (const auto axis = findFocusAxis(context.device)) {
        double position = 0;
        if (readPosition(context.device, *axis, position))
            result.position = position;
    }
    // After a turn, the last picture may be blurred.
    return options.seconds > 0 ? Sentence{} : result.last.problem;
}

std::string focusNumber(double value, int decimals)
{
    char text[64];
    std::snprintf(text, sizeof text, "%.*f", decimals, value);
    return text;
}

/// Returns the cell of a region: its best position or time, its share of the peak, or its sharpness.
std::string focusCell(const FocusResult &result, std::size_t index)
{
    const RegionFocus &region = result.last.regions[index];
    const bool hasPeaks = result.analysis && result.analysis->best && index < result.analysis->regions.size();
    if (hasPeaks && result.analysis->regions[index].peak)
        return focusNumber(result.analysis->regions[index].peak->position, result.axis ? 1 : 2);
    if (region.state == RegionFocus::State::TooDark)
        return "dark";
    if (region.state == RegionFocus::State::Clipped)
        return "clipped";
    if (hasPeaks || !region.isUsable())
        return "-";
    return focusNumber(region.sharpness, 4);
}

void printGrid(const FocusResult &result)
{
    const auto columns = static_cast<std::size_t>(result.last.grid.columns);
    std::vector<std::vector<std::string>> rows;
    for (std::size_t i = 0; i < result.last.regions.size(); ++i) {
        if (i % columns == 0)
            rows.emplace_back();
        rows.back().push_back(focusCell(result, i));
    }
    printTable(rows);
}

void printAnalysis(const FocusResult &result)
{
    const SurfaceUnit unit{!result.axis, result.axis ? 1 : 2};
    const FocusAnalysis &analysis = *result.analysis;
    if (analysis.surface) {
        std::printf("%s\n", toEnglish(tiltSentence(*analysis.surface, unit)).c_str());
        const Sentence curvature = curvatureSentence(*analysis.surface, unit);
        if (!curvature.isEmpty())
            std::printf("%s\n", toEnglish(curvature).c_str());
    } else {
        std::printf("%s\n", toEnglish(noTiltSentence()).c_str());
    }
    for (const GridCorner &corner : gridCorners(result.last.grid))
        if (corner.region < analysis.regions.size() && analysis.regions[corner.region].peak)
            std::printf("%s: %.0f %% of its peak at the best position\n", corner.name,
                100 * analysis.regions[corner.region].shareAtBest);
}

void printFocus(const FocusResult &result)
{
    if (result.analysis && result.analysis->best)
        std::printf(result.axis ? "Best position of each region (%s):\n"
                                : "Time at which each region was sharp, in %s:\n",
            result.axis ? printable(result.axis->name).c_str() : "seconds");
    printGrid(result);
    std::printf("Sharpness: %s\n", focusNumber(result.last.sharpness, 4).c_str());
    if (result.peak > 0)
        std::printf("Share of the peak: %.0f %%\n", 100 * result.last.sharpness / result.peak);
    if (result.analysis && result.analysis->best && result.axis) {
        const double best = *result.analysis->best;
        std::printf("%s\n", toEnglish(bestPositionSentence(best, *result.position, *result.axis)).c_str());
    }
    if (result.analysis)
        printAnalysis(result);
}

ExitStatus writeFocus(const FocusCommandOptions &options, const FocusRun &run)
{
    std::string problem;
    if (!options.file.empty())
        problem = writeSidecar(options.file, resultJson(run.result, run.camera));
    if (problem.empty() && !options.csvFile.empty())
        problem = writeFocusCsv(options.csvFile, run.result);
    if (!problem.empty()) {
        printError(problem);
        return exitFailure;
    }
    if (options.isJson)
        printJson(toJson(run.result));
    else
        printFocus(run.result);
    return exitSuccess;
}

ExitStatus runFocus(const FocusCommandOptions &options)
{
    FocusRun run;
    const ExitStatus status
        = runMeasurement(options.measure, [&](const MeasureContext &context, const CameraRecord &camera) {
              run.camera = camera;
              return measureFocus(options, context, run.result);
          });
    return status == exitSuccess ? writeFocus(options, run) : status;
}

} // namespace

void addFocusCommand(CLI::App &program, ExitStatus &status)
{
    const auto options = std::make_shared<FocusCommandOptions>();
    CLI::App *const command = program.add_subcommand("focus",
        "Measure how sharp the picture is, in a grid of regions. The sharpness depends neither on the "
        "exposure "
        "nor on the noise. With --sweep, find the best position of a lens with a motor, and how the focus is "
        "tilted; with --turn, find the tilt while a person turns the lens. The lens is put back unless "
        "--keep "
        "is given");
    addMeasureOptions(*command, options->measure);
    command->add_option("--grid", options->grid, "Regions in each direction")
        ->check(CLI::Range(FocusGrid::min, FocusGrid::max))
        ->capture_default_str();
    auto *const sweep = command->add_flag("--sweep", options->isSweep,
        "Move the lens through its range and find the best position of each region");
    command
        ->add_flag(
            "--keep", options->measure.keepsChanges, "Leave the lens at the best position that was found")
        ->needs(sweep);
    command->add_option("--settle", options->settle, "Milliseconds that the lens needs after a movement")
        ->check(CLI::Range(0, 60000))
        ->capture_default_str()
        ->needs(sweep);
    command
        ->add_option("--turn", options->seconds,
            "Measure for this many seconds, during which the lens is turned once through the sharpest "
            "position")
        ->check(CLI::Range(1.0, 600.0))
        ->excludes(sweep);
    command
        ->add_option("--black-level", options->blackLevel,
            "Value of a dark pixel in percent of the range; by default, the feature BlackLevel tells it")
        ->check(CLI::Range(0.0, 50.0));
    command->add_option("--output", options->file, "Write the result as a JSON file of this name");
    command->add_option("--csv", options->csvFile, "Write all samples as a CSV file of this name");
    command->add_flag("--json", options->isJson, "Print the result as JSON");
    command->callback([options, &status] { status = runFocus(*options); });
}
