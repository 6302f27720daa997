#include "sdk/image/Correction.h"

#include "sdk/image/PackedField.h"
#include "sdk/image/PixelLayout.h"
#include "sdk/image/RawImage.h"

namespace {

bool isCorrectable(const PixelLayout &layout)
{
    const PixelFormat &format = layout.format;
    return (format.kind == PixelKind::Mono || format.kind == PixelKind::Bayer) && format.components == 1
        && layout.number == Number::Unsigned && format.depth >= 8 && format.depth <= 16;
}

/// Returns true if the part from `offset` on lies inside the whole one.
bool isInside(std::uint32_t offset, std::uint32_t size, std::uint32_t wholeOffset, std::uint32_t wholeSize)
{
    return offset >= wholeOffset && std::uint64_t(offset) + size <= std::uint64_t(wholeOffset) + wholeSize;
}

std::string sizeText(std::uint32_t width, std::uint32_t height)
{
    return std::to_string(width) + " x " + std::to_string(height);
}

std::string placeText(const Region &region)
{
    return sizeText(region.width, region.height) + " pixels at " + std::to_string(region.x) + ", "
        + std::to_string(region.y);
}

/// A map without size, from a file that does not contain it, fits pictures of all sizes.
bool fits(const DefectMap &map, const Region &place)
{
    const bool fitsWidth = map.width == 0 || isInside(place.x, place.width, 0, map.width);
    return fitsWidth && (map.height <= 1 || isInside(place.y, place.height, 0, map.height));
}

bool fits(const FlatField &field, const Region &place)
{
    return isInside(place.x, place.width, field.offsetX, field.width)
        && (field.isLineScan() || isInside(place.y, place.height, field.offsetY, field.height));
}

std::string formatProblem(const PixelLayout &layout)
{
    if (isCorrectable(layout))
        return {};
    return std::string("corrections need one value of 8 to 16 bits per pixel, which ")
        + (layout.packing == Packing::Unknown ? "this pixel format" : layout.format.name)
        + " does not have; set PixelFormat to a Mono or Bayer format of 8 to 16 bits";
}

} // namespace

Correction::Correction(std::optional<DefectMap> defects, std::optional<FlatField> flatField)
    : m_defects(std::move(defects)), m_flatField(std::move(flatField))
{
    if (m_flatField)
        m_packed = std::make_unique<PackedField>(*m_flatField, m_defects ? &*m_defects : nullptr);
}

Correction::~Correction() = default;

std::string Correction::problem(std::uint32_t pixelFormat, std::uint32_t offsetX, std::uint32_t offsetY,
    std::uint32_t width, std::uint32_t height) const
{
    if (std::string problem = formatProblem(findPixelLayout(pixelFormat)); !problem.empty())
        return problem;
    const Region place{offsetX, offsetY, width, height};
    if (m_defects && !fits(*m_defects, place))
        return "the defect map covers " + sizeText(m_defects->width, m_defects->height)
            + " pixels of the sensor, but the picture has " + placeText(place)
            + "; choose the map of this camera and a region inside it, or measure the map again";
    if (m_flatField && !fits(*m_flatField, place))
        return "the flat field covers "
            + placeText({m_flatField->offsetX, m_flatField->offsetY, m_flatField->width, m_flatField->height})
            + " of the sensor, but the picture has " + placeText(place)
            + "; choose a region inside, or measure the flat field again for this region";
    return {};
}
