#include "sdk/image/PackedField.h"

#include "sdk/image/DefectRepairs.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double maxGain = 16;

/// Gain, and what is added after the multiplication, before they are packed.
struct FieldNumbers
{
    std::vector<float> gains;
    std::vector<float> offsets;
};

FieldNumbers fieldNumbers(const FlatField &field)
{
    FieldNumbers numbers{field.gain, field.offset};
    const double range = std::ldexp(1, static_cast<int>(field.depth));
    for (std::size_t i = 0; i < numbers.gains.size(); ++i) {
        const double gain = std::isfinite(field.gain[i]) ? std::clamp<double>(field.gain[i], 0, maxGain) : 1;
        const double dark
            = std::isfinite(field.offset[i]) ? std::clamp<double>(field.offset[i], -range / 2, range) : 0;
        numbers.gains[i] = static_cast<float>(gain);
        numbers.offsets[i] = static_cast<float>(std::clamp(field.blackLevel, 0.0, range) - dark * gain);
    }
    return numbers;
}

/// Replaces the numbers of defect pixels with the medians of their neighbours. Pixels at the distance of two
/// have the same colour, whatever the pattern.
void replaceDefects(const FlatField &field, const DefectMap &defects, FieldNumbers &numbers)
{
    constexpr int sameColor = 2;
    const Region place{field.offsetX, field.offsetY, field.width, field.height};
    const DefectRepairs repairs(defects, place, sameColor);
    for (std::vector<float> *const values : {&numbers.gains, &numbers.offsets}) {
        const std::vector<float> measured = *values;
        const auto valueAt = [&](std::uint32_t x, std::uint32_t y) {
            return double(measured[std::size_t(y) * field.width + x]);
        };
        for (const DefectRepairs::Repair &repair : repairs.all())
            (*values)[std::size_t(repair.y) * field.width + repair.x]
                = static_cast<float>(repairs.median<double>(repair, repair.y, valueAt));
    }
}

double largest(const std::vector<float> &values)
{
    double result = 0;
    for (const float value : values)
        result = std::max<double>(result, std::abs(value));
    return result;
}

/// Returns the most binary digits after the point, at most `maximum`, with which numbers up to `number` stay
/// below 2^bits.
int fractionBits(double number, int bits, int maximum)
{
    int exponent = 0;
    std::frexp(number, &exponent); // number < 2^exponent
    return number > 0 ? std::min(bits - exponent, maximum) : maximum;
}

template <typename Packed>
std::vector<Packed> packed(const std::vector<float> &values, int bits)
{
    std::vector<Packed> result(values.size());
    std::transform(values.begin(), values.end(), result.begin(), [bits](float value) {
        const double scaled = std::nearbyint(std::ldexp(double(value), bits));
        return static_cast<Packed>(std::clamp<double>(
            scaled, std::numeric_limits<Packed>::min(), std::numeric_limits<Packed>::max()));
    });
    return result;
}

} // namespace

PackedField::PackedField(const FlatField &field, const DefectMap *defects)
    : m_offsetX(field.offsetX),
      m_offsetY(field.offsetY),
      m_width(field.width),
      m_isLineScan(field.isLineScan()),
      m_depth(static_cast<int>(field.depth))
{
    FieldNumbers numbers = fieldNumbers(field);
    if (defects)
        replaceDefects(field, *defects, numbers);
    // With the limits of fieldNumbers(), all sums fit into 32 bits; see FieldLine.
    constexpr int maxGainBits = 15;
    constexpr int maxOffsetBits = 20;
    m_gainBits = fractionBits(largest(numbers.gains), 16, maxGainBits);
    m_offsetBits = fractionBits(largest(numbers.offsets), 15, maxOffsetBits);
    m_gains = packed<std::uint16_t>(numbers.gains, m_gainBits);
    m_offsets = packed<std::int16_t>(numbers.offsets, m_offsetBits);
}

FieldLine PackedField::line(std::uint32_t x, std::uint32_t y, unsigned depth) const
{
    const std::size_t index = (m_isLineScan ? 0 : std::size_t(y - m_offsetY) * m_width) + (x - m_offsetX);
    const int sumBits = m_gainBits - FieldLine::droppedBits;
    const int offsetShift
        = FieldLine::offsetUnit - sumBits + m_offsetBits + m_depth - static_cast<int>(depth);
    return {m_gains.data() + index, m_offsets.data() + index, std::clamp(offsetShift, 0, 31), sumBits,
        (1 << depth) - 1};
}
