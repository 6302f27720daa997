#pragma once

#include "sdk/image/DefectMap.h"
#include "sdk/image/FlatField.h"
#include "sdk/image/PixelKernels.h"

#include <vector>

/// A flat field in fixed point, four bytes per pixel: correcting a picture is limited by the memory that it
/// reads. The error of the corrected values is below 2^-14 of their range for gains below 2, and at most
/// 2^-11 for the largest gain, which is 16.
///
/// Defect pixels get the medians of their neighbours' gain and offset: their own ones belong to a value that
/// is replaced.
class PackedField
{
public:
    PackedField(const FlatField &field, const DefectMap *defects);

    /// Returns the values of the pixels from column `x` of line `y` on, both of the sensor, for a picture
    /// with values of `depth` bits.
    FieldLine line(std::uint32_t x, std::uint32_t y, unsigned depth) const;

private:
    std::uint32_t m_offsetX;
    std::uint32_t m_offsetY;
    std::uint32_t m_width;
    bool m_isLineScan;
    int m_depth;
    int m_gainBits = 0; ///< Binary digits after the point.
    int m_offsetBits = 0; ///< The same.
    std::vector<std::uint16_t> m_gains;
    std::vector<std::int16_t> m_offsets; ///< What is added after the multiplication.
};
