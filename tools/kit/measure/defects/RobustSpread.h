#pragma once

#include <vector>

/// Centre and width of numbers of which almost half may be outliers.
struct RobustSpread
{
    double median = 0;
    /// Standard deviation of the good numbers. 1.4826 times the median of the absolute deviations from the
    /// median (MAD) says which numbers are good: P. J. Rousseeuw and C. Croux, "Alternatives to the Median
    /// Absolute Deviation", Journal of the American Statistical Association 88 (1993). The result is the
    /// standard deviation of the numbers within three of these, corrected for the missing tails of a normal
    /// distribution. It is more exact than the MAD, also if the numbers have few different values.
    double deviation = 0;
};

/// Returns the median, or the upper one of two; 0 if there are no numbers. Changes the order of the numbers.
double medianOf(std::vector<float> &numbers);

/// Changes the numbers.
RobustSpread robustSpread(std::vector<float> &numbers);
