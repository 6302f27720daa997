#include "tools/imageviewer/numbers/LossAdvice.h"

#include <algorithm>

using namespace CvxCPP;

namespace {

/// Returns the first finding that is at least a warning, else the first one, else null.
const Finding *mostRelevant(const Findings &findings)
{
    const auto isProblem = [](const Finding &finding) { return finding.severity >= Severity::Warning; };
    const auto problem = std::find_if(findings.begin(), findings.end(), isProblem);
    if (problem != findings.end())
        return &*problem;
    return findings.empty() ? nullptr : &findings.front();
}

QString usualCause(CvxTransportLayerType technology)
{
    switch (technology) {
    case CvxTransportLayerGigE:
        return LossAdvice::tr(
            "Packets are lost between camera and computer: check cable and switch, or reduce the "
            "frame rate or the region.");
    case CvxTransportLayerUSB:
        return LossAdvice::tr(
            "Transfers are lost between camera and computer: check the cable, connect the camera "
            "without a hub, or reduce the frame rate or the region.");
    default:
        return LossAdvice::tr(
            "The connection or the computer is too slow: reduce the frame rate or the region, or close "
            "other programs.");
    }
}

int countForPlural(std::uint64_t count)
{
    return static_cast<int>(std::min<std::uint64_t>(count, 1000000000));
}

} // namespace

LossAdvice LossAdvice::choose(
    const RecentLosses &losses, CvxTransportLayerType technology, const Findings &findings)
{
    LossAdvice advice;
    if (losses.isEmpty())
        return advice;
    const std::uint64_t damaged = losses.lost + losses.incomplete;
    // Images without a buffer leave gaps in the frame IDs too, so both counters grow.
    if (losses.underruns >= damaged) {
        advice.text
            = tr("No buffer was free for %n image(s). This computer is too slow at present: close other "
                 "programs, record to a faster disk, or reduce the frame rate or the region.",
                nullptr, countForPlural(losses.underruns));
        return advice;
    }
    advice.text = losses.lost > 0
        ? tr("%n image(s) were lost or damaged in the last seconds.", nullptr, countForPlural(damaged))
        : tr("%n image(s) were incomplete in the last seconds.", nullptr, countForPlural(damaged));
    advice.text += QLatin1Char(' ');
    const Finding *const cause = mostRelevant(findings);
    if (!cause) {
        advice.text += usualCause(technology);
        return advice;
    }
    advice.text += QString::fromStdString(cause->what + ' ' + cause->why).trimmed();
    advice.command = QString::fromStdString(cause->command);
    return advice;
}
