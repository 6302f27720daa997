#include "sdk/producerhost/ProblemList.h"

#include <algorithm>
#include <utility>

void ProblemList::add(Problem problem)
{
    const bool isKnown = std::any_of(m_problems.begin(), m_problems.end(),
        [&](const Problem &known) { return known.call == problem.call && known.code == problem.code; });
    if (!isKnown)
        m_problems.push_back(std::move(problem));
}

void ProblemList::add(const ProblemList &others)
{
    for (const Problem &problem : others.m_problems)
        add(problem);
}
