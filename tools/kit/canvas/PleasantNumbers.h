#pragma once

/// Returns the largest of the numbers 1, 2 and 5 times a power of ten that is not above the limit, which is
/// greater than 0.
double pleasantAtMost(double limit);

/// Returns the smallest one that is not below the limit.
double pleasantAtLeast(double limit);
