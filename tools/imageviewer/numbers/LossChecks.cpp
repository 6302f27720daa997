#include "tools/imageviewer/numbers/LossChecks.h"

#include "sdk/doctor/KernelChecks.h"
#include "sdk/doctor/NetworkChecks.h"
#include "sdk/doctor/UsbChecks.h"

#include <system_error>

using namespace CvxCPP;

namespace {

/// Keeps what is not as it should be.
void appendCauses(Findings &causes, const Findings &findings)
{
    for (const Finding &finding : findings) {
        if (finding.severity != Severity::Ok && !finding.command.empty())
            causes.push_back(finding);
    }
}

Findings gigeCausesOfThisMachine(const LossQuestion &question)
{
    try {
        return gigeLossCauses(question, readMachine(FileTree()));
    } catch (const std::system_error &) { // The machine does not permit to search cameras.
        return {};
    }
}

} // namespace

Findings findLossCauses(const LossQuestion &question)
{
    if (question.technology == CvxTransportLayerGigE)
        return gigeCausesOfThisMachine(question);
    if (question.technology == CvxTransportLayerUSB)
        return usbLossCauses(FileTree());
    return {};
}

Findings gigeLossCauses(const LossQuestion &question, const Machine &machine)
{
    Machine withoutOtherLinks = machine;
    withoutOtherLinks.links.clear();
    for (const NetworkLink &link : machine.links) {
        if (link.hasCarrier && machine.hasCameraAt(link.name))
            withoutOtherLinks.links.push_back(link);
    }
    Findings causes;
    if (question.report.packetSize)
        appendCauses(
            causes, checkPacketSize(withoutOtherLinks, question.camera, *question.report.packetSize));
    appendCauses(causes, checkReceiveBuffer(machine));
    appendCauses(causes, checkLinks(withoutOtherLinks));
    return causes;
}

Findings usbLossCauses(const FileTree &files)
{
    Findings causes;
    for (const Finding &finding : checkUsb(files)) {
        if (finding.severity != Severity::Notice) // That a program uses the camera is no cause.
            appendCauses(causes, {finding});
    }
    return causes;
}
