#include "sdk/producerhost/Problem.h"

#include <algorithm>
#include <utility>

bool isTimeout(const Problem &problem)
{
    return problem.code == GenTL::GC_ERR_TIMEOUT;
}

bool isGone(const Problem &problem)
{
    return problem.code == GenTL::GC_ERR_INVALID_ID || problem.code == GenTL::GC_ERR_INVALID_INDEX;
}

void addProblem(std::vector<Problem> &problems, Problem problem)
{
    const bool known = std::any_of(problems.begin(), problems.end(),
        [&](const Problem &other) { return other.call == problem.call && other.code == problem.code; });
    if (!known)
        problems.push_back(std::move(problem));
}
