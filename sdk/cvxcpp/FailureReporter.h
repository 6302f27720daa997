#pragma once

#include "sdk/protocol/Problem.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

/// Reports the failures of one producer, each on one line. A failure that repeats is reported only once
/// until the producer returns a camera list again. A failed call is reported only once while the same host
/// runs.
class FailureReporter
{
public:
    using Sink = std::function<void(const std::string &line)>;

    /// If `sink` is empty, nothing is reported.
    FailureReporter(std::string producerPath, Sink sink);

    void hostStarted() { m_reportedProblems.clear(); }
    void camerasListed() { m_lastReason.clear(); }

    void reportFailure(const std::string &reason);
    void reportProblems(const std::vector<Problem> &problems);
    void reportUnusedCameras(std::size_t reportedCameras, std::size_t usedCameras);

    /// Returns true if a failure was reported since the producer last returned a camera list.
    bool hasReported() const { return !m_lastReason.empty(); }

private:
    using ProblemKey = std::pair<std::string, std::int32_t>; // The function and its error code.

    bool isNew(const ProblemKey &key);

    std::string m_path;
    Sink m_sink;
    std::string m_lastReason;
    std::set<ProblemKey> m_reportedProblems;
};

/// Returns the message for a failed call, for example "TLOpen failed with -1010 (GC_ERR_IO): no link".
std::string problemReason(const Problem &problem);
