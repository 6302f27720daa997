#include "sdk/cvxcpp/FailureReporter.h"

#include "sdk/process/ExitReason.h"
#include "sdk/text/Utf8.h"

namespace {

constexpr std::size_t maxReasonLength = 500; // Bytes.
constexpr std::size_t maxCallLength = 64; // Bytes; the names of all GenTL functions are shorter.
// Limit per host, because some producers fail with a new code every time.
constexpr std::size_t maxProblems = 64;

} // namespace

FailureReporter::FailureReporter(std::string producerPath, Sink sink)
    : m_path(std::move(producerPath)), m_sink(std::move(sink))
{ }

void FailureReporter::reportFailure(const std::string &reason)
{
    const std::string start = reason.substr(0, maxReasonLength);
    if (start == std::exchange(m_lastReason, start))
        return;
    if (m_sink)
        m_sink(toLine(m_path + ": " + start));
}

void FailureReporter::reportProblems(const std::vector<Problem> &problems)
{
    for (const Problem &problem : problems) {
        if (isNew({problem.call.substr(0, maxCallLength), problem.code}))
            reportFailure(problemReason(problem));
    }
}

void FailureReporter::reportUnusedCameras(std::size_t reportedCameras, std::size_t usedCameras)
{
    if (isNew({"too many cameras", 0}))
        reportFailure("reports " + std::to_string(reportedCameras) + " cameras, of which only the first "
            + std::to_string(usedCameras) + " are used");
}

bool FailureReporter::isNew(const ProblemKey &key)
{
    return m_reportedProblems.size() < maxProblems && m_reportedProblems.insert(key).second;
}

std::string problemReason(const Problem &problem)
{
    return callReason(problem.call, problem.code, problem.text);
}
