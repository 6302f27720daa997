#include "sdk/doctor/ProducerChecks.h"

#include "sdk/cvxcpp/CtiSearchPath.h"
#include "sdk/cvxcpp/ProducerSearch.h"
#include "sdk/cvxcpp/SystemOptions.h"
#include "sdk/process/ExitReason.h"
#include "sdk/text/Utf8.h"

#include <algorithm>
#include <filesystem>
#include <map>

namespace {

std::string fileName(const std::string &path)
{
    return toPrintable(std::filesystem::path(path).filename().string());
}

std::size_t countCameras(const ProducerReport &report)
{
    std::size_t count = 0;
    for (const InterfaceRecord &interface : report.interfaces)
        count += interface.devices.size();
    return count;
}

/// Describes a producer that works, for example "works (Orvelle, version 1.0.0, GenTL 1.5) and reports 2
/// cameras".
std::string workingText(const ProducerReport &report)
{
    std::string details;
    const auto add = [&](const std::string &prefix, const std::string &text) {
        if (!text.empty())
            details += (details.empty() ? " (" : ", ") + prefix + toPrintable(text);
    };
    if (report.info) {
        add("", report.info->vendor);
        add("version ", report.info->version);
        if (report.info->genTlMajor != 0)
            add("GenTL ",
                std::to_string(report.info->genTlMajor) + '.' + std::to_string(report.info->genTlMinor));
    }
    const std::size_t cameras = countCameras(report);
    return fileName(report.path) + " works" + details + (details.empty() ? "" : ")") + " and reports "
        + std::to_string(cameras) + (cameras == 1 ? " camera." : " cameras.");
}

std::string join(const std::vector<std::string> &names)
{
    std::string text;
    for (const std::string &name : names)
        text += (text.empty() ? "" : ", ") + name;
    return text;
}

/// Returns the first names and the number of the remaining ones.
std::string joinSome(std::vector<std::string> names)
{
    constexpr std::size_t maxNames = 3;
    const std::size_t count = names.size();
    names.resize(std::min(count, maxNames));
    return join(names)
        + (count > maxNames ? " and " + std::to_string(count - maxNames) + " more functions" : "");
}

Finding unusable(const ProducerReport &report)
{
    const bool isLoadFailure = report.failure.rfind("dlopen", 0) == 0;
    return {Severity::Error, fileName(report.path),
        fileName(report.path) + " cannot be used: " + toPrintable(report.failure) + '.',
        "Its cameras are missing. Install what it needs, or install it again.",
        isLoadFailure ? "ldd " + shellWord(report.path) : std::string()};
}

/// Appends the findings of one producer.
void checkReport(const ProducerReport &report, Findings &findings)
{
    const std::string name = fileName(report.path);
    if (!report.failure.empty()) {
        findings.push_back(unusable(report));
        return;
    }
    const std::size_t before = findings.size();
    if (report.info && !report.info->missingFunctions.empty())
        findings.push_back({Severity::Warning, name,
            name + " lacks " + joinSome(report.info->missingFunctions) + '.',
            "Its cameras are listed, but cannot be opened or cannot stream; a newer version may help.", {}});
    if (report.info && report.info->genTlMajor > 1)
        findings.push_back({Severity::Warning, name,
            name + " follows GenTL " + std::to_string(report.info->genTlMajor) + '.',
            "This software supports GenTL 1; calls may fail.", {}});
    if (!report.problems.empty()) {
        const Problem &first = report.problems.front();
        findings.push_back({Severity::Warning, name,
            name + ": " + toPrintable(callReason(first.call, first.code, first.text)) + '.',
            std::to_string(report.problems.size())
                + (report.problems.size() == 1 ? " call has failed" : " calls have failed")
                + " during the search, so cameras may be missing.",
            {}});
    }
    if (findings.size() == before)
        findings.push_back({Severity::Ok, name, workingText(report), {}, {}});
}

/// Appends a finding for each file name that is present in several directories.
void checkCopies(const std::vector<ProducerReport> &reports, Findings &findings)
{
    std::map<std::string, std::vector<std::string>> paths; // By the file name.
    for (const ProducerReport &report : reports)
        paths[fileName(report.path)].push_back(report.path);
    for (const auto &[name, copies] : paths) {
        if (copies.size() < 2)
            continue;
        std::string command = "ls -l";
        for (const std::string &copy : copies)
            command += ' ' + shellWord(copy);
        findings.push_back({Severity::Warning, name,
            name + " is present " + std::to_string(copies.size()) + " times: " + toPrintable(join(copies))
                + '.',
            "All copies search cameras, and the first one that reports a camera opens it. Remove the older "
            "one.",
            command});
    }
}

/// Appends a finding for each camera that several producers report.
void checkSharedCameras(const std::vector<ProducerReport> &reports, Findings &findings)
{
    std::map<std::pair<std::string, std::string>, std::vector<std::string>> producers; // By model and serial.
    for (const ProducerReport &report : reports) {
        for (const InterfaceRecord &interface : report.interfaces) {
            for (const DeviceRecord &device : interface.devices) {
                auto &names = producers[{device.model, device.serial}];
                const std::string name = fileName(report.path);
                if (!device.serial.empty() && std::find(names.begin(), names.end(), name) == names.end())
                    names.push_back(name);
            }
        }
    }
    for (const auto &[camera, names] : producers) {
        if (names.size() > 1)
            findings.push_back({Severity::Notice, toPrintable(camera.first + ' ' + camera.second),
                "Several producers report the camera: " + join(names) + '.',
                "The list contains it once, and the first of these producers opens it.", {}});
    }
}

} // namespace

ProducerSurvey surveyProducers(const std::string &libraryDirectory, const char *searchPath)
{
    const SystemOptions options = SystemOptions::forLibraryDirectory(libraryDirectory);
    ProducerSurvey survey;
    survey.directories = configuredCtiDirectories(options.installRoot, options.configurationFile);
    for (const std::string &directory : searchPathDirectories(searchPath)) {
        std::error_code ignored;
        if (!std::filesystem::is_directory(directory, ignored))
            survey.missingDirectories.push_back(directory);
        survey.directories.push_back(directory);
    }
    const auto paths = findProducers(
        survey.directories, [&](const std::string &fault) { survey.faults.push_back(fault); });
    survey.reports = tryProducers(options.hostProgram, paths);
    return survey;
}

Findings checkProducers(const ProducerSurvey &survey)
{
    Findings findings;
    for (const std::string &directory : survey.missingDirectories)
        findings.push_back({Severity::Warning, "GENICAM_GENTL64_PATH",
            toPrintable(directory) + " is in GENICAM_GENTL64_PATH, but is not a directory.",
            "The producers of a vendor's software are not found; it may have been removed.",
            "printenv GENICAM_GENTL64_PATH"});
    for (const std::string &fault : survey.faults)
        findings.push_back({Severity::Warning, "producers", toPrintable(fault) + '.',
            "This entry is not used as a producer.", {}});
    if (survey.reports.empty())
        findings.push_back({Severity::Error, "producers",
            "No producer (*.cti) was found in " + toPrintable(join(survey.directories)) + '.',
            "Without a producer, no camera is found.", {}});
    for (const ProducerReport &report : survey.reports)
        checkReport(report, findings);
    checkCopies(survey.reports, findings);
    checkSharedCameras(survey.reports, findings);
    return findings;
}
