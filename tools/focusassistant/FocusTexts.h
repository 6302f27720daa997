#pragma once

#include "tools/kit/measure/focus/FocusMeasurement.h"

#include <QCoreApplication>
#include <QString>

/// Texts of the Focus Assistant.
class FocusTexts
{
    Q_DECLARE_TR_FUNCTIONS(FocusTexts)

public:
    /// Returns the name of a corner of the grid, or of the end of a line; see gridCorners().
    static QString corner(const FocusGrid &grid, std::size_t index);

    /// Returns a corner with its share.
    static QString cornerShare(const QString &corner, const QString &share);

    /// Returns the sentence about the corners at the best position.
    static QString atBest(const QString &corners);

    /// Returns a share of the peak in percent.
    static QString share(double share);

    /// Returns why a region is not measured; empty for one that is.
    static QString state(RegionFocus::State state);
};
