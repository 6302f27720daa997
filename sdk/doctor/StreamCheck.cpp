#include "sdk/doctor/StreamCheck.h"

#include "sdk/text/Utf8.h"

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace CvxCPP;

namespace {

constexpr unsigned trialBuffers = 16;

std::optional<std::int64_t> readFeature(Device &device, const std::string &name)
{
    std::int64_t value = 0;
    return device.ReadInteger(name, value) ? std::optional(value) : std::nullopt;
}

/// Returns the name of the feature that counts packets which were sent again; empty if there is none.
std::string findResendFeature(Device &device)
{
    std::vector<NodeInfo> nodes;
    if (!device.GetNodes(nodes))
        return {};
    const auto found = std::find_if(nodes.begin(), nodes.end(), isResendCounter);
    return found == nodes.end() ? std::string() : found->name;
}

/// Takes images until the time is over. Returns the text of a failure.
std::string takeImages(
    Stream &stream, std::chrono::steady_clock::time_point end, const std::function<bool()> &isCancelled)
{
    constexpr std::chrono::milliseconds slice{100};
    while (std::chrono::steady_clock::now() < end && !isCancelled()) {
        std::shared_ptr<const Image> image;
        const CvxResult result = stream.WaitForImage(slice, image);
        if (!result && result.code != CvxErrorTimeout)
            return result.text;
    }
    return {};
}

std::string rateText(const StreamReport &report)
{
    char text[64];
    const double rate
        = report.seconds > 0 ? static_cast<double>(report.counters.delivered) / report.seconds : 0;
    std::snprintf(text, sizeof text, "%.1f images/s", rate);
    return text;
}

std::string summaryOf(const StreamReport &report)
{
    const StreamStatistics &counters = report.counters;
    std::string text = std::to_string(counters.delivered) + " images (" + rateText(report) + "), "
        + std::to_string(counters.lost) + " lost, " + std::to_string(counters.incomplete) + " incomplete, "
        + std::to_string(counters.underruns) + " without a free buffer";
    if (report.packetSize)
        text += ", packets of " + std::to_string(*report.packetSize) + " bytes";
    if (report.resends)
        text += ", " + std::to_string(*report.resends) + " packets sent again";
    return text + '.';
}

} // namespace

bool isResendCounter(const NodeInfo &node)
{
    const auto has = [&](const char *part) { return node.name.find(part) != std::string::npos; };
    const bool isCount = has("Resent") || (has("Resend") && has("Count"));
    return node.type == NodeType::Integer && isCount;
}

StreamReport tryStream(
    Device &device, std::chrono::milliseconds time, const std::function<bool()> &isCancelled)
{
    StreamReport report;
    const std::string resendFeature = findResendFeature(device);
    const auto resendsBefore = readFeature(device, resendFeature);
    std::shared_ptr<Stream> stream;
    if (const CvxResult result = device.StartStream(trialBuffers, StreamPolicy::EveryImage, stream);
        !result) {
        report.failure = result.text;
        return report;
    }
    const auto start = std::chrono::steady_clock::now();
    report.failure = takeImages(*stream, start + time, isCancelled);
    report.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    report.packetSize = readFeature(device, "GevSCPSPacketSize");
    const CvxResult stopped = stream->Stop();
    if (!stopped && report.failure.empty())
        report.failure = stopped.text;
    if (const CvxResult result = stream->GetStatistics(report.counters); !result && report.failure.empty())
        report.failure = result.text;
    if (const auto resends = readFeature(device, resendFeature); resends && resendsBefore)
        report.resends = *resends - *resendsBefore;
    return report;
}

Findings checkStream(const std::string &camera, const StreamReport &report)
{
    const std::string subject = toPrintable(camera);
    if (!report.failure.empty())
        return {{Severity::Error, subject, "The trial stream has failed: " + toPrintable(report.failure), {},
            {}}};
    const StreamStatistics &counters = report.counters;
    if (counters.delivered == 0 && counters.lost == 0)
        return {{Severity::Error, subject, "No image has arrived.",
            "The camera may wait for a trigger, or a firewall drops its images.",
            "cvxctl get " + shellWord(subject) + " TriggerMode"}};
    Findings findings;
    if (counters.lost + counters.incomplete > 0 || report.resends.value_or(0) > 0)
        findings.push_back({counters.lost + counters.incomplete > 0 ? Severity::Warning : Severity::Notice,
            subject, summaryOf(report),
            "Packets are lost between camera and computer: check the cable, the receive buffers and the "
            "packet "
            "size, or reduce the frame rate.",
            "cvxctl features " + shellWord(subject) + " --category TransportLayerControl"});
    else if (counters.underruns > 0)
        findings.push_back({Severity::Warning, subject, summaryOf(report),
            "The computer is too slow for this frame rate, or is busy.", "top"});
    else
        findings.push_back({Severity::Ok, subject, summaryOf(report), {}, {}});
    return findings;
}
