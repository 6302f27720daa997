#pragma once

#include "CvxCPP/Node.h"

#include <optional>

/// Maps the range of a number to the positions of a slider, linearly or logarithmically.
class SliderScale
{
public:
    static constexpr int positions = 1000; ///< The highest position; the lowest is 0.

    /// Returns no scale if the range is empty or has no useful limits. The scale is logarithmic if the camera
    /// asks for it, or if the range is positive and spans at least three decades.
    static std::optional<SliderScale> create(
        double minimum, double maximum, CvxCPP::NodeRepresentation representation);

    bool isLogarithmic() const { return m_isLogarithmic; }

    /// Returns the nearest position; values outside of the range give the first or the last one.
    int position(double value) const;

    /// Returns the value at a position, rounded to the digits that one position is worth. The ends of the
    /// slider are exactly the ends of the range.
    double value(int position) const;

private:
    SliderScale(double minimum, double maximum, bool isLogarithmic);

    double m_minimum;
    double m_maximum;
    double
        m_start; ///< Start of the logarithmic part: the minimum, or a value above it if it is not positive.
    bool m_isLogarithmic;
};
