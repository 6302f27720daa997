#include "sdk/doctor/Doctor.h"
#include "sdk/doctor/StreamCheck.h"
#include "tools/cvxctl/CameraSession.h"
#include "tools/cvxctl/Commands.h"
#include "tools/cvxctl/Interruption.h"
#include "tools/cvxctl/Terminal.h"

#include <cstdio>

namespace {

struct DoctorCommandOptions
{
    double seconds = 0; // No trial stream if 0.
    std::string camera;
    bool isJson = false;
};

/// Finds the one camera that the text means. An empty text means the only camera.
ExitStatus openForTrial(CameraSession &session, const std::string &text)
{
    if (!text.empty())
        return session.open(text, CvxCPP::CvxAccessControl);
    std::vector<ListedCamera> cameras;
    if (const ExitStatus status = session.listLate(cameras))
        return status;
    if (cameras.size() == 1)
        return session.open(cameras.front().names.extendedId, CvxCPP::CvxAccessControl);
    printError(cameras.empty()
            ? "there is no camera for the trial stream"
            : "there are several cameras; name the one for the trial stream after --stream");
    return cameras.empty() ? exitNoCamera : exitAmbiguous;
}

/// Appends the findings of a trial stream.
ExitStatus checkTrialStream(const DoctorCommandOptions &options, Findings &findings)
{
    CameraSession session;
    if (const ExitStatus status = openForTrial(session, options.camera))
        return status;
    const std::chrono::milliseconds time(static_cast<std::int64_t>(options.seconds * 1000));
    const StreamReport report = tryStream(session.device(), time, isInterrupted);
    const Findings more = checkStream(session.camera().names.id, report);
    findings.insert(findings.end(), more.begin(), more.end());
    return isInterrupted() ? exitInterrupted : exitSuccess;
}

nlohmann::ordered_json toJson(const Findings &findings)
{
    auto json = nlohmann::ordered_json::array();
    for (const Finding &finding : findings)
        json.push_back({{"severity", severityText(finding.severity)}, {"subject", finding.subject},
            {"what", finding.what}, {"why", finding.why}, {"command", finding.command}});
    return json;
}

void print(const Findings &findings)
{
    for (const Finding &finding : findings) {
        const bool isNamed = finding.what.find(finding.subject) != std::string::npos;
        std::string line = isNamed ? finding.what : finding.subject + ": " + finding.what;
        if (!finding.why.empty())
            line += ' ' + finding.why;
        if (!finding.command.empty())
            line += " Run: " + finding.command;
        std::printf("%-8s %s\n", severityText(finding.severity), printable(line).c_str());
    }
}

ExitStatus run(const DoctorCommandOptions &options)
{
    Findings findings = runDoctor(DoctorOptions::forThisProgram());
    const ExitStatus streamStatus = options.seconds > 0 ? checkTrialStream(options, findings) : exitSuccess;
    if (options.isJson)
        printJson(toJson(findings));
    else
        print(findings);
    if (streamStatus != exitSuccess)
        return streamStatus;
    return hasProblem(findings) ? exitFindings : exitSuccess;
}

} // namespace

void addDoctorCommand(CLI::App &program, ExitStatus &status)
{
    const auto options = std::make_shared<DoctorCommandOptions>();
    CLI::App *const command = program.add_subcommand("doctor",
        "Check what keeps cameras from working: producers, network, GigE cameras and USB. Prints one line "
        "for "
        "each finding: what, why it matters, and the command that corrects it. Exit status 10 means that "
        "there "
        "is something to correct");
    auto *const stream
        = command->add_option("--stream", options->seconds, "Also stream from a camera for this many seconds")
              ->check(CLI::Range(0.1, 86400.0))
              ->type_name("SECONDS");
    command
        ->add_option("CAMERA", options->camera,
            std::string(cameraHelp) + ", for the trial stream; the only camera if it is left out")
        ->needs(stream);
    command->add_flag("--json", options->isJson, "Print JSON");
    command->callback([options, &status] { status = run(*options); });
}
