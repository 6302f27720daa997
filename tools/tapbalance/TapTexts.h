#pragma once

#include "tools/kit/measure/taps/TapResult.h"

#include <QCoreApplication>
#include <QString>

/// What the tool says about taps.
class TapTexts
{
    Q_DECLARE_TR_FUNCTIONS(TapTexts)

public:
    /// Returns the step with its uncertainty, for example "+0.12 % ± 0.01 %".
    static QString step(const TapMeasurement &measurement, const TapStep &step);

    /// Returns a deviation, in percent of a bright picture or in pixel values of a dark one.
    static QString deviation(const TapMeasurement &measurement, double value);

    static QString unit(const TapMeasurement &measurement);

    /// Returns what balancing has achieved, as a sentence.
    static QString balanced(const TapBalance &balance);

    /// Returns the number that a person reads: percent, or pixel values.
    static double shown(const TapMeasurement &measurement, double value);
};
