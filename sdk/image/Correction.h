#pragma once

#include "sdk/image/DefectMap.h"
#include "sdk/image/FlatField.h"

#include <memory>
#include <optional>
#include <string>

/// Corrections of the pictures of one camera: first the defect pixels are replaced, then offset and gain are
/// corrected; colours are computed afterwards. Immutable, so threads can share it.
class Correction
{
public:
    /// At least one of them has a value.
    Correction(std::optional<DefectMap> defects, std::optional<FlatField> flatField);

    const std::optional<DefectMap> &defects() const { return m_defects; }
    const std::optional<FlatField> &flatField() const { return m_flatField; }

    /// Returns why pictures of this kind cannot be corrected, for example because the region reaches beyond
    /// the flat field or the format has no single raw value per pixel; empty if they can. Applies to Mono and
    /// Bayer formats of integers up to 16 bits.
    /// @param offsetX, offsetY Place of the picture on the sensor.
    std::string problem(std::uint32_t pixelFormat, std::uint32_t offsetX, std::uint32_t offsetY,
        std::uint32_t width, std::uint32_t height) const;

private:
    std::optional<DefectMap> m_defects;
    std::optional<FlatField> m_flatField;
};
