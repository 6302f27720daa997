#pragma once

#include "tools/kit/measure/thermal/ThermalMonitor.h"

#include <QCoreApplication>
#include <QString>

/// Temperatures and what is known about them, in the language of the program.
class ThermalTexts
{
    Q_DECLARE_TR_FUNCTIONS(ThermalTexts)

public:
    /// Returns the name of a place as the camera calls it; "Camera" if it has no name.
    static QString place(const std::string &place);

    static QString temperature(double celsius, int decimals = 1); ///< For example "45.2 °C".

    /// Returns a duration for people, for example "4 min" or "50 s".
    static QString duration(double seconds);

    /// Returns state and rate in one line, for example "Warming up, +1.25 K/min".
    static QString state(const PlaceReport &report);

    /// Returns the expected final value with its uncertainty and the time to steady, or why there is none.
    static QString forecast(const PlaceReport &report);

    static QString alert(const ThermalMonitor::AlertChange &change); ///< A sentence.

    /// Returns what is known about the dark level, one fact per line.
    static QString dark(const DarkSeries &series);
};
