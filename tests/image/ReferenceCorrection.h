#pragma once

#include "sdk/image/Correction.h"
#include "sdk/image/RawImage.h"

#include <functional>
#include <vector>

/// Corrects single pixels as the documentation of DefectRepairs and FlatField describes it, in floating-point
/// numbers. Slow and simple.
class ReferenceCorrection
{
public:
    /// Returns the raw value of a pixel of the picture.
    using RawValue = std::function<double(int x, int y)>;

    /// @param place The picture on the sensor.
    /// @param step Distance of pixels of the same colour.
    ReferenceCorrection(
        const Correction &correction, const Region &place, int depth, int step, const RawValue &rawValue);

    /// Returns the corrected value, which is not rounded.
    double value(int x, int y) const;

private:
    double repaired(int x, int y) const;
    double fieldValue(const std::vector<double> &values, int sensorX, int sensorY) const;

    const Correction &m_correction;
    const Region m_place;
    const int m_depth;
    const int m_step;
    const RawValue m_rawValue;
    std::vector<double> m_gains;
    std::vector<double> m_dark; ///< What is added after the multiplication.
};
