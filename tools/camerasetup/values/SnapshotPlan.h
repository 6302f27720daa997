#pragma once

#include "sdk/features/FeatureDirectory.h"

#include <deque>
#include <set>
#include <string>
#include <vector>

/// Features that are read with one or several calls.
struct SnapshotPart
{
    std::vector<std::string> selectors; ///< All of the features have these selectors; outer ones first.
    std::vector<std::string> names;
    std::set<std::string> finished; ///< Combinations that were read already; see selectorsKey().
};

/// The features that have to be read under all values of their selectors, each of them once: those without
/// selectors first, the others grouped by their selectors.
class SnapshotPlan
{
public:
    void clear();

    /// Adds a feature behind the others. If it waits already, all combinations of its part are read again.
    void add(const FeatureDirectory &directory, const std::string &name);
    void remove(const std::string &name);
    bool contains(const std::string &name) const { return m_waiting.count(name) > 0; }
    bool isEmpty() const { return m_parts.empty(); }

    /// Removes and returns up to `count` features of the first group. The plan must not be empty.
    SnapshotPart take(std::size_t count);

    /// Puts back a part whose combinations are not all finished; it is taken again first. Returns false and
    /// leaves the part as it is if too many combinations were read already.
    bool putBack(SnapshotPart &part);

    static constexpr std::size_t maxCombinations = 50000; ///< Three colours of a table with 4096 entries fit.

private:
    std::deque<SnapshotPart> m_parts;
    std::set<std::string> m_waiting; // All names.
};
