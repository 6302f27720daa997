#pragma once

#include "tools/camerasetup/compare/DifferenceRow.h"

/// Which features of a comparison are shown. By default, these are the differences that do not belong to one
/// camera or one moment.
struct ComparisonFilter
{
    bool isEqualShown = false;
    bool isIgnorableShown = false;
    QString search; ///< Part of a name, of a title or of a value; empty for no search.

    bool shows(const DifferenceRow &row) const;
};

/// The numbers of a comparison.
struct ComparisonCounts
{
    int all = 0; ///< Without those that belong to one camera or one moment.
    int different = 0; ///< Likewise; includes the features that one side lacks.
    int ignorable = 0; ///< Differences that belong to one camera or one moment.

    static ComparisonCounts of(const std::vector<DifferenceRow> &rows);

    /// Returns the numbers as a sentence for people.
    QString summary(const ComparisonFilter &filter) const;
};
