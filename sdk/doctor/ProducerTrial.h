#pragma once

#include "sdk/process/Timing.h"
#include "sdk/protocol/DiscoveryMessages.h"

#include <optional>
#include <string>
#include <vector>

/// What a trial of a producer has shown.
struct ProducerReport
{
    std::string path;
    std::optional<ProducerInfoReply> info;
    std::vector<InterfaceRecord> interfaces; ///< The interfaces with the cameras that the producer has found.
    std::vector<Problem> problems; ///< Calls that have failed during the search.
    std::string failure; ///< Why the producer cannot be used, as a part of a sentence; empty if it can.
};

/// Loads each producer in a host process of its own, asks it for its version and its cameras, and ends it.
/// Blocks for at most three times `replyTimeout`. Returns the reports in the order of the paths.
std::vector<ProducerReport> tryProducers(const std::string &hostProgram,
    const std::vector<std::string> &paths, Milliseconds replyTimeout = Milliseconds(10000));
