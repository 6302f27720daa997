#pragma once

#include "sdk/image/DefectMap.h"
#include "sdk/image/FlatField.h"

#include <memory>
#include <optional>
#include <string>

class PackedField;

/// Corrections of the pictures of one camera: first the defect pixels are replaced (see DefectRepairs), then
/// offset and gain are corrected (see PackedField); colours are computed afterwards. Immutable, so threads
/// can share it.
///
/// The place of a picture on the sensor tells which pixel is which. A picture that the camera has mirrored,
/// binned or decimated says nothing about that: it is refused if it is larger than the map or the field, and
/// otherwise corrected with the wrong pixels. The caller has to compare the camera's settings.
class Correction
{
public:
    /// At least one of them has a value.
    Correction(std::optional<DefectMap> defects, std::optional<FlatField> flatField);
    ~Correction();
    Correction(const Correction &) = delete;
    Correction &operator=(const Correction &) = delete;

    const std::optional<DefectMap> &defects() const { return m_defects; }
    const std::optional<FlatField> &flatField() const { return m_flatField; }

    /// Returns why pictures of this kind cannot be corrected, for example because the region reaches beyond
    /// the flat field or the format has no single raw value per pixel; empty if they can. Applies to Mono and
    /// Bayer formats of unsigned integers of 8 to 16 bits.
    /// @param offsetX, offsetY Place of the picture on the sensor.
    std::string problem(std::uint32_t pixelFormat, std::uint32_t offsetX, std::uint32_t offsetY,
        std::uint32_t width, std::uint32_t height) const;

    /// The flat field as the conversion needs it; null if there is none.
    const PackedField *packedField() const { return m_packed.get(); }

private:
    std::optional<DefectMap> m_defects;
    std::optional<FlatField> m_flatField;
    std::unique_ptr<const PackedField> m_packed;
};

/// A correction and the place on the sensor of the pictures that it is applied to.
struct PlacedCorrection
{
    std::shared_ptr<const Correction> correction; ///< Null: pictures are not corrected.
    std::uint32_t offsetX = 0;
    std::uint32_t offsetY = 0;
};
