#pragma once

#include <optional>
#include <vector>

/// The sharpness at one position of the lens, or at one time while the lens is being turned.
struct FocusPoint
{
    double position = 0;
    double sharpness = 0;
};

/// The best position.
struct FocusPeak
{
    double position = 0;
    double sharpness = 0; ///< At the position, by the fit.
    double halfWidth = 0; ///< Distance from the position at which half of the rise is lost.
    bool isBracketed = false; ///< The sharpness falls on both sides; otherwise the best position may be
                              ///< beyond the ends.
};

/// Fits a Gaussian curve, which is a parabola through the logarithms, to the points around the highest one,
/// as S. K. Nayar and Y. Nakagawa do ("Shape from Focus", IEEE PAMI 16, 1994), but by weighted least squares
/// over all points within the half width. The weights fall smoothly to 0 on both sides, so the position of
/// every symmetric peak is right, also of a pointed one. Returns nothing if there are fewer than three
/// points, or no peak.
/// @param points In any order; several may have the same position.
std::optional<FocusPeak> fitPeak(std::vector<FocusPoint> points);
