#include "sdk/doctor/Doctor.h"

#include "sdk/doctor/CameraChecks.h"
#include "sdk/doctor/KernelChecks.h"
#include "sdk/doctor/NetworkChecks.h"
#include "sdk/doctor/ProducerChecks.h"
#include "sdk/doctor/UsbChecks.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace {

constexpr Findings (*networkChecks[])(const Machine &) = {checkLinks, checkSubnets, checkReceiveBuffer,
    checkReversePathFilter, checkFirewall, checkCameras, checkConflicts};

void append(Findings &findings, const Findings &more)
{
    findings.insert(findings.end(), more.begin(), more.end());
}

Findings checkNetwork(const FileTree &files)
{
    Findings findings;
    try {
        const Machine machine = readMachine(files);
        for (const auto check : networkChecks)
            append(findings, check(machine));
    } catch (const std::system_error &error) {
        findings.push_back(
            {Severity::Error, "network", "The network cannot be checked: " + error.code().message() + '.',
                "GigE cameras are not found either.", {}});
    }
    return findings;
}

} // namespace

DoctorOptions DoctorOptions::forThisProgram()
{
    std::error_code ignored;
    DoctorOptions options;
    options.libraryDirectory
        = std::filesystem::read_symlink("/proc/self/exe", ignored).parent_path().string();
    return options;
}

Findings runDoctor(const DoctorOptions &options)
{
    const FileTree files(options.root);
    Findings findings
        = checkProducers(surveyProducers(options.libraryDirectory, std::getenv("GENICAM_GENTL64_PATH")));
    append(findings, checkNetwork(files));
    append(findings, checkUsb(files));
    return findings;
}
