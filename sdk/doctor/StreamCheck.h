#pragma once

#include "CvxCPP/Device.h"
#include "sdk/doctor/Finding.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

/// What a trial stream has shown.
struct StreamReport
{
    CvxCPP::StreamStatistics counters;
    double seconds = 0; ///< How long the stream has run.
    std::optional<std::int64_t> packetSize; ///< Bytes; only of a GigE camera.
    std::optional<std::int64_t> resends; ///< Packets that were sent again, if the camera counts them.
    std::string failure; ///< Why there was no stream; empty if there was one.
};

/// Returns true if the camera counts in this feature the packets that it has sent again. The names of such
/// features are not standardised.
bool isResendCounter(const CvxCPP::NodeInfo &node);

/// Streams for some time without keeping the images.
/// @param isCancelled Ends the stream early if it returns true.
StreamReport tryStream(
    CvxCPP::Device &device, std::chrono::milliseconds time, const std::function<bool()> &isCancelled);

/// Returns what the stream says about the camera and its connection.
/// @param camera The name of the camera.
Findings checkStream(const std::string &camera, const StreamReport &report);
