#include "sdk/imagefile/Sidecar.h"
#include "tools/cvxctl/Assignment.h"
#include "tools/cvxctl/Commands.h"
#include "tools/cvxctl/MeasureRun.h"
#include "tools/cvxctl/Terminal.h"
#include "tools/kit/measure/taps/TapResult.h"

#include <cstdio>
#include <filesystem>
#include <map>

using namespace CvxCPP;

namespace {

struct TapsOptions
{
    MeasureOptions measure;
    TapOptions taps;
    std::string layout; // Empty: that of DeviceTapGeometry.
    std::vector<std::string> darkAssignments;
    std::string output;
    bool isBalancing = false;
    bool hasDark = false;
    bool isJson = false;
};

const std::map<std::string, TapReference> tapReferences{
    {"mean", TapReference::Mean}, {"first", TapReference::FirstTap}};

std::string checkTapLayout(const std::string &text)
{
    return parseTapGeometry(text) ? std::string()
                                  : "a layout is for example 4X_1Y, 2X_2Y or the value of DeviceTapGeometry";
}

/// Makes the picture dark, by the features of --dark-set or by the person, and undoes that.
class DarkPicture
{
public:
    DarkPicture(Device &device, const std::vector<std::string> &assignments)
        : m_device(device), m_assignments(assignments)
    { }

    ExitStatus begin()
    {
        if (m_assignments.empty())
            return askPerson("Cover the lens.", "--dark-set, or do without --dark");
        for (const std::string &assignment : m_assignments) {
            std::string before;
            if (m_device.ReadText(assignedName(assignment), before))
                m_before.emplace_back(assignedName(assignment), before);
        }
        return writeAssignments(m_device, m_assignments);
    }

    ExitStatus end()
    {
        if (m_assignments.empty())
            return askPerson("Uncover the lens and show an even, bright surface.");
        for (auto setting = m_before.rbegin(); setting != m_before.rend(); ++setting) {
            if (const CvxResult result = m_device.WriteText(setting->first, setting->second); !result) {
                printError(result.text);
                return exitStatus(result.code);
            }
        }
        return exitSuccess;
    }

private:
    Device &m_device;
    const std::vector<std::string> &m_assignments;
    std::vector<std::pair<std::string, std::string>> m_before;
};

/// Measures or balances one setting.
Sentence measureOrBalance(
    const MeasureContext &context, const TapsOptions &options, TapSetting setting, TapResult &result)
{
    if (!options.isBalancing) {
        TapMeasurement measurement;
        Sentence problem = measureTaps(context, options.taps, setting, measurement);
        (setting == TapSetting::Gain ? result.bright : result.dark) = std::move(measurement);
        return problem;
    }
    TapBalance balance;
    Sentence problem = balanceTaps(context, options.taps, setting, balance);
    if (problem.isEmpty())
        result.add(balance);
    return problem;
}

/// `preparation` becomes the reason if the dark picture cannot be prepared.
Sentence workOnTaps(
    const MeasureContext &context, TapsOptions &options, TapResult &result, ExitStatus &preparation)
{
    const auto layout = findTapLayout(context.device, options.taps);
    if (const auto *const problem = std::get_if<Sentence>(&layout))
        return *problem;
    result.layout = std::get<TapLayout>(layout);
    if (options.hasDark) {
        DarkPicture dark(context.device, options.darkAssignments);
        if (preparation = dark.begin(); preparation != exitSuccess)
            return cancelledSentence();
        if (Sentence problem = measureOrBalance(context, options, TapSetting::BlackLevel, result);
            !problem.isEmpty())
            return problem;
        options.taps.darkLevel = result.darkLevel();
        if (preparation = dark.end(); preparation != exitSuccess)
            return cancelledSentence();
    }
    return measureOrBalance(context, options, TapSetting::Gain, result);
}

std::string tapDecimals(double value, int digits)
{
    return toEnglish({"%1", {SentenceNumber{value, digits}}});
}

void printTaps(const TapMeasurement &measurement, const std::optional<TapBalance> &balance)
{
    const double factor = measurement.isDark ? 1 : 100;
    const char *const unit = measurement.isDark ? "" : " %";
    std::vector<std::vector<std::string>> rows{{"TAP", "MEAN", "NOISE", "DEVIATION"}};
    if (balance)
        rows.front().insert(rows.front().end(), {"BEFORE", balance->control.feature, "BEFORE"});
    for (std::size_t i = 0; i < measurement.taps.size(); ++i) {
        const TapMeasurement::Tap &tap = measurement.taps[i];
        rows.push_back({std::to_string(i + 1), tapDecimals(tap.mean, 2), tapDecimals(tap.noise, 2),
            tapDecimals(factor * tap.deviation, 3) + unit});
        if (balance)
            rows.back().insert(rows.back().end(),
                {tapDecimals(factor * balance->before.taps.at(i).deviation, 3) + unit,
                    tapDecimals(balance->valuesAfter.at(i), 3), tapDecimals(balance->valuesBefore.at(i), 3)});
    }
    printTable(rows);
    for (const TapStep &step : measurement.steps)
        std::printf("step from tap %u to tap %u: %s%s +- %s%s\n", step.first + 1, step.second + 1,
            tapDecimals(factor * measurement.stepOf(step), 3).c_str(), unit,
            tapDecimals(factor * measurement.errorOf(step), 3).c_str(), unit);
    std::printf("mismatch: %s%s\n", tapDecimals(factor * measurement.mismatch, 3).c_str(), unit);
    if (balance)
        std::printf("before: %s%s; %s after %zu rounds\n",
            tapDecimals(factor * balance->before.mismatch, 3).c_str(), unit,
            balance->isReached ? "balanced" : "the mismatch does not fall any further", balance->rounds);
}

ExitStatus runTaps(TapsOptions &options)
{
    options.taps.layout = parseTapGeometry(options.layout);
    options.measure.keepsChanges = options.isBalancing;
    TapResult result;
    CameraRecord camera;
    ExitStatus preparation = exitSuccess;
    const ExitStatus status
        = runMeasurement(options.measure, [&](const MeasureContext &context, const CameraRecord &record) {
              camera = record;
              return workOnTaps(context, options, result, preparation);
          });
    if (preparation != exitSuccess)
        return preparation;
    if (status != exitSuccess)
        return status;
    const nlohmann::ordered_json document = tapDocument(camera, result);
    if (options.isJson) {
        printJson(document);
    } else {
        if (result.dark) {
            std::printf("dark picture, in units of the pixel values\n");
            printTaps(*result.dark, result.blackLevel);
            std::printf("\nbright picture\n");
        }
        printTaps(*result.bright, result.gain);
    }
    if (options.output.empty())
        return exitSuccess;
    std::string problem = writeSidecar(options.output, document);
    if (problem.empty())
        problem
            = writeTapTable(std::filesystem::path(options.output).replace_extension(".csv").string(), result);
    if (!problem.empty())
        printError(problem);
    return problem.empty() ? exitSuccess : exitFailure;
}

} // namespace

void addTapsCommand(CLI::App &program, ExitStatus &status)
{
    const auto options = std::make_shared<TapsOptions>();
    CLI::App *const command = program.add_subcommand("taps",
        "Measure how the taps of the sensor differ, by the steps at their borders; with --balance, set their "
        "gains so that they agree. Show an even, bright surface. The gains stay in the camera until it is "
        "switched off; save a user set to keep them");
    addMeasureOptions(*command, options->measure);
    command->add_flag("--balance", options->isBalancing, "Set the gains, and with --dark the black levels");
    command->add_flag("--dark", options->hasDark,
        "Measure the black levels first, for which the lens has to be covered. Otherwise, differences of the "
        "black levels count as differences of the gains");
    command
        ->add_option("--dark-set", options->darkAssignments,
            "Feature to write for the dark pictures, for example to close a shutter, instead of asking you")
        ->type_name("NAME=VALUE")
        ->allow_extra_args(false)
        ->check(checkAssignment);
    command
        ->add_option("--layout", options->layout,
            "Taps as DeviceTapGeometry names them, for cameras without this feature: 4X_1Y are four stripes "
            "side by side, 1X_2Y two halves, 1X2_1Y two taps that read the columns in turn")
        ->check(checkTapLayout);
    command
        ->add_option("--reference", options->taps.reference,
            "What the taps are compared with: mean (of all taps) or first (tap 1)")
        ->transform(CLI::CheckedTransformer(tapReferences));
    command->add_option("--images", options->taps.images, "Images of each measurement")
        ->check(CLI::Range(2, 256))
        ->capture_default_str();
    command->add_option("--output", options->output,
        "Write the result to this JSON file, and the taps to a CSV file beside it");
    command->add_flag("--json", options->isJson, "Print the result as JSON");
    command->callback([options, &status] {
        options->hasDark = options->hasDark || !options->darkAssignments.empty();
        status = runTaps(*options);
    });
}
