#pragma once

#include "sdk/protocol/Problem.h"

#include <vector>

/// The problems of one search. The list contains only one problem for each function and error code, because
/// a thousand devices may fail in the same way.
class ProblemList
{
public:
    void add(Problem problem);
    void add(const ProblemList &others);
    void clear() { m_problems.clear(); }

    const std::vector<Problem> &all() const { return m_problems; }

private:
    std::vector<Problem> m_problems;
};
