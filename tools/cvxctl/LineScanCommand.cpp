#include "sdk/imagefile/Sidecar.h"
#include "tools/cvxctl/CameraSession.h"
#include "tools/cvxctl/Commands.h"
#include "tools/cvxctl/MeasureRun.h"
#include "tools/cvxctl/Terminal.h"
#include "tools/kit/measure/linescan/LineScanResult.h"
#include "tools/kit/measure/linescan/PlanBuilder.h"
#include "tools/kit/measure/linescan/PlanWriter.h"

#include <algorithm>
#include <cstdio>

using namespace CvxCPP;

namespace {

constexpr std::size_t imagesPerTarget = 3; // Images that are searched for a target, at most.

struct LineScanOptions
{
    MeasureOptions measure;
    LineScanInputs inputs;
    unsigned targets = 8;
    std::vector<std::uint32_t> columns; // First and count.
    std::string output;
    bool doesApply = false;
    bool doesMeasure = false;
    bool doesCorrect = false;
    bool isJson = false;

    bool hasInputs() const { return inputs.speed > 0 || objectPixelOf(inputs, 1).has_value(); }
};

std::string fixedText(double value, int decimals, const char *unit)
{
    char text[64];
    std::snprintf(text, sizeof text, "%.*f %s", decimals, value, unit);
    return text;
}

void addRow(std::vector<std::vector<std::string>> &rows, const char *name, const std::optional<double> &value,
    int decimals, const char *unit)
{
    if (value)
        rows.push_back({name, fixedText(*value, decimals, unit)});
}

void printPlan(const LineRatePlan &plan)
{
    std::vector<std::vector<std::string>> rows;
    addRow(rows, "Pixel on the object", plan.objectPixel, 3, "um");
    addRow(rows, "Line rate for square pixels", plan.wantedRate, 3, "Hz");
    addRow(rows, "Line rate of the camera", plan.rate, 3, "Hz");
    addRow(rows, "Longest exposure", plan.longestExposure, 3, "us");
    addRow(rows, "Exposure", plan.exposure, 3, "us");
    addRow(rows, "Dead time of a line", plan.deadTime, 3, "us");
    addRow(rows, "Lines per pulse for square pixels", plan.wantedRatio, 6, "");
    if (plan.ratio)
        addRow(rows, "Lines per pulse of the camera", plan.ratio->linesPerPulse(), 6, "");
    addRow(rows, "Remaining error", plan.errorPercent, 3, "%");
    if (plan.limit.reason != RateReason::None)
        addRow(rows, "Highest line rate", plan.limit.rate, 3, "Hz");
    addRow(rows, "Highest speed of the object", plan.highestSpeed, 3, "mm/s");
    printTable(rows);
    std::puts(plan.settings.empty() ? "\nThe camera is set up already." : "\nSettings:");
    rows.clear();
    for (const PlannedSetting &setting : plan.settings)
        rows.push_back({"  " + printable(settingText(setting)),
            "(was " + printable(plannedValueText(setting.before)) + ')'});
    printTable(rows);
}

void printTarget(const Roundness &roundness, const Sentence &sentence)
{
    std::printf("\n%s\n", toEnglish(sentence).c_str());
    printTable({{"Height to width", fixedText(roundness.heightToWidth, 4, "")},
        {"Deviation of single images", fixedText(roundness.deviation, 4, "")},
        {"Images with a target",
            std::to_string(roundness.targets.size()) + " of " + std::to_string(roundness.images)},
        {"Turn of the camera", fixedText(roundness.turnDegrees, 2, "degrees")}});
}

/// One run of the command: calculates, writes and measures what the options ask for.
class LineScanRun
{
public:
    explicit LineScanRun(const LineScanOptions &options) : m_options(options)
    {
        m_result.inputs = options.inputs;
    }

    const LineScanResult &result() const { return m_result; }

    Sentence calculate(Device &device)
    {
        if (const CvxResult read = readLineScanCamera(device, m_camera); !read)
            return untranslated(read.text);
        if (const Sentence problem = unsuitableCamera(m_camera); !problem.isEmpty())
            return problem;
        if (!m_options.hasInputs())
            return {};
        m_result.plan = PlanBuilder(m_result.inputs, m_camera).build();
        if (!m_result.plan.isPossible())
            return m_result.plan.problem;
        for (const Sentence &warning : m_result.plan.warnings)
            printError(toEnglish(warning));
        if (!m_options.isJson)
            printPlan(m_result.plan);
        return {};
    }

    Sentence apply(Device &device)
    {
        const Sentence problem = applyPlan(device, m_result.plan);
        if (!problem.isEmpty())
            return problem;
        std::vector<PlannedSetting> &planned = m_result.plan.settings;
        m_result.written.insert(m_result.written.end(), planned.begin(), planned.end());
        planned.clear();
        return {};
    }

    Sentence measure(const MeasureContext &context, std::optional<Roundness> &measured)
    {
        RoundnessOptions options;
        options.targets = m_options.targets;
        options.maxImages = std::max(options.maxImages, imagesPerTarget * options.targets);
        if (m_options.columns.size() == 2)
            options.columns = {m_options.columns[0], m_options.columns[1], {}};
        Roundness roundness;
        if (const CvxResult read = readLineScanCamera(context.device, m_camera); !read)
            return untranslated(read.text);
        if (const Sentence problem = measureRoundness(context, m_camera, options, roundness);
            !problem.isEmpty())
            return problem;
        measured = roundness;
        if (!m_options.isJson)
            printTarget(roundness, roundnessSentence(roundness, m_camera));
        return {};
    }

    /// Calculates the inputs for which the target would be round, writes the new plan and measures again.
    Sentence correct(const MeasureContext &context)
    {
        const auto corrected = correctedInputs(m_result.inputs, m_camera, *m_result.before);
        if (!corrected)
            return {"Enter the pixel size and the magnification, or the size of a pixel on the object."};
        m_result.inputs = *corrected;
        if (const Sentence problem = calculate(context.device); !problem.isEmpty())
            return problem;
        if (const Sentence problem = applyWhileStreaming(context.device); !problem.isEmpty())
            return problem;
        return measure(context, m_result.after);
    }

    Sentence applyWhileStreaming(Device &device)
    {
        if (m_result.plan.needsPause())
            return {"The camera does not allow these changes while it sends images. Use --apply without "
                    "--measure and --correct first."};
        return apply(device);
    }

    Sentence measureAll(const MeasureContext &context)
    {
        Sentence problem = calculate(context.device);
        if (problem.isEmpty() && m_options.doesApply)
            problem = applyWhileStreaming(context.device);
        if (problem.isEmpty())
            problem = measure(context, m_result.before);
        return problem.isEmpty() && m_options.doesCorrect ? correct(context) : problem;
    }

private:
    const LineScanOptions &m_options;
    LineScanCamera m_camera;
    LineScanResult m_result;
};

ExitStatus saveLineScan(
    const LineScanOptions &options, const LineScanResult &result, const CameraRecord &camera)
{
    const nlohmann::ordered_json json = resultJson(result, camera);
    if (options.isJson)
        printJson(json["result"]);
    if (options.output.empty())
        return exitSuccess;
    std::string problem = writeSidecar(options.output, json);
    if (problem.empty())
        problem = writeLineScanCsv(tablePath(options.output), result);
    if (problem.empty())
        return exitSuccess;
    printError(problem);
    return exitFailure;
}

/// Calculates and writes without a stream, because some cameras lock their features while they send images.
ExitStatus runPlan(const LineScanOptions &options)
{
    CameraSession session;
    const std::string &name = options.measure.camera;
    const ExitStatus opened
        = options.doesApply ? session.open(name, CvxAccessControl) : session.openToRead(name);
    if (opened != exitSuccess)
        return opened;
    LineScanRun run(options);
    const CameraRecord camera = readCameraRecord(*session.camera().camera, session.device());
    Sentence problem = run.calculate(session.device());
    if (problem.isEmpty() && options.doesApply)
        problem = run.apply(session.device());
    if (problem.isEmpty())
        return saveLineScan(options, run.result(), camera);
    printError(toEnglish(problem));
    return exitFailure;
}

ExitStatus runLineScan(const LineScanOptions &options)
{
    const bool needsInputs = options.doesApply || options.doesCorrect || !options.doesMeasure;
    if (const Sentence problem = problemOf(options.inputs); needsInputs && !problem.isEmpty()) {
        printError(toEnglish(problem) + " \"cvxctl linescan --help\" names the options.");
        return exitUsage;
    }
    if (!options.doesMeasure && !options.doesCorrect)
        return runPlan(options);
    LineScanRun run(options);
    CameraRecord record;
    MeasureOptions measure = options.measure;
    measure.keepsChanges = options.doesApply || options.doesCorrect;
    const ExitStatus status
        = runMeasurement(measure, [&](const MeasureContext &context, const CameraRecord &camera) {
              record = camera;
              return run.measureAll(context);
          });
    return status == exitSuccess ? saveLineScan(options, run.result(), record) : status;
}

void addLineScanInputs(CLI::App &command, LineScanInputs &inputs)
{
    const auto add = [&command](const char *name, double &value, const char *help) {
        return command.add_option(name, value, help)->check(CLI::PositiveNumber);
    };
    add("--speed", inputs.speed,
        "Speed of the object in mm/s; with an encoder, the highest speed, for the limits");
    add("--pixel-size", inputs.pixelSize, "Width of a pixel of the sensor in um");
    add("--magnification", inputs.magnification,
        "Size of the image on the sensor divided by that of the object");
    add("--object-pixel", inputs.objectPixel,
        "Size of a pixel of the picture on the object in um, instead of the two above");
    add("--encoder-step", inputs.encoderStep, "Movement of the object per pulse of the encoder in mm");
    add("--pulses", inputs.pulsesPerRevolution,
        "Pulses of the encoder per revolution, with --roller-diameter instead of --encoder-step");
    add("--roller-diameter", inputs.rollerDiameter, "Diameter of the encoder's roller in mm");
    command.add_flag("--longest-exposure", inputs.usesLongestExposure,
        "Plan the longest exposure; otherwise, the exposure is only shortened if it has to be");
}

} // namespace

void addLineScanCommand(CLI::App &program, ExitStatus &status)
{
    const auto options = std::make_shared<LineScanOptions>();
    CLI::App *const command = program.add_subcommand("linescan",
        "Calculate and set the lines of a line scan camera, so that its pixels are square on a moving "
        "object, "
        "by the camera's line rate or by an encoder. --measure checks it with a round target");
    addMeasureOptions(*command, options->measure);
    addLineScanInputs(*command, options->inputs);
    command->add_flag("--apply", options->doesApply, "Write the settings; if one is refused, put all back");
    command->add_flag("--measure", options->doesMeasure,
        "Measure height to width of the largest dark or bright disc or ring in the pictures");
    command->add_flag("--correct", options->doesCorrect,
        "Measure, write the rate for which the target is round, and measure again");
    command->add_option("--targets", options->targets, "Pictures with a target that are measured")
        ->check(CLI::Range(1, 1000))
        ->capture_default_str();
    command->add_option("--columns", options->columns, "First column and number of columns to search")
        ->expected(2);
    command->add_option("--output", options->output,
        "File for the result as JSON; the table is written beside it, with the ending .csv");
    command->add_flag("--json", options->isJson, "Print the result as JSON");
    command->callback([options, &status] {
        const LineScanInputs &inputs = options->inputs;
        options->inputs.trigger = inputs.encoderStep > 0 || inputs.pulsesPerRevolution > 0
            ? LineScanInputs::Trigger::Encoder
            : LineScanInputs::Trigger::LineRate;
        status = runLineScan(*options);
    });
}
