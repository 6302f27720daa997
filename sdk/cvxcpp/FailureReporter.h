#pragma once

#include "sdk/protocol/Problem.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

/// Reports what goes wrong with one producer, one line per message. A failure that repeats is reported once,
/// until the producer has worked again; a failed call is reported once in the life of a host.
class FailureReporter
{
public:
    using Sink = std::function<void(const std::string &line)>;

    /// `sink` may be empty; then nothing is reported.
    FailureReporter(std::string producerPath, Sink sink);

    void hostStarted() { m_reportedProblems.clear(); }
    void camerasListed() { m_lastReason.clear(); }

    void reportFailure(const std::string &reason);
    void reportProblems(const std::vector<Problem> &problems);
    void reportUnusedCameras(std::size_t reportedCameras, std::size_t usedCameras);

    /// Returns true if something was reported since the producer last listed its cameras.
    bool hasReported() const { return !m_lastReason.empty(); }

private:
    using ProblemKey = std::pair<std::string, std::int32_t>; // The call and its code.

    bool isNew(const ProblemKey &key);

    std::string m_path;
    Sink m_sink;
    std::string m_lastReason;
    std::set<ProblemKey> m_reportedProblems;
};

/// Returns the message for a failed call, for example "TLOpen failed with -1010 (GC_ERR_IO): no link".
std::string problemReason(const Problem &problem);
