#pragma once

#include "tools/kit/measure/thermal/PlaceMonitor.h"

#include <cmath>
#include <random>

/// Readings of a camera that warms up as the simulated ones do, with the errors of real sensors.
struct TemperatureModel
{
    double start = 32;
    double end = 51;
    double timeConstant = 150; ///< Seconds.
    double noise = 0; ///< Standard deviation in kelvin.
    double step = 0; ///< Step to which readings are rounded; 0 for no rounding.
    unsigned seed = 1;

    double truth(double seconds) const { return end + (start - end) * std::exp(-seconds / timeConstant); }

    /// Adds readings from `from` until before `to`; the model began at `origin`.
    void feed(PlaceMonitor &monitor, double from, double to, double interval, double origin = 0)
    {
        for (long index = std::lround(from / interval); static_cast<double>(index) * interval < to; ++index) {
            const double seconds = static_cast<double>(index) * interval;
            double reading = truth(seconds - origin) + noise * distribution(random);
            if (step > 0)
                reading = std::round(reading / step) * step;
            monitor.add(seconds, reading);
        }
    }

    std::mt19937 random{seed};
    std::normal_distribution<double> distribution{};
};
