#include "tests/image/ReferenceCorrection.h"

#include <algorithm>
#include <cmath>

namespace {

bool isDefect(const DefectMap &map, std::int64_t sensorX, std::int64_t sensorY)
{
    return std::any_of(map.pixels.begin(), map.pixels.end(), [&](const DefectPixelEntry &pixel) {
        return pixel.x == sensorX && (map.isLineScan() || pixel.y == sensorY);
    });
}

/// Returns the values of the good pixels around one that is defective; nothing if there are too few.
std::vector<double> goodNeighbours(const DefectMap &map, const Region &place, int step, int x, int y,
    const ReferenceCorrection::RawValue &valueAt)
{
    const std::size_t needed = map.isLineScan() ? 2 : 3;
    std::vector<double> values;
    for (int ring = 1; ring <= 8 && values.size() < needed; ++ring) {
        for (int row = -ring; row <= ring; ++row) {
            for (int column = -ring; column <= ring; ++column) {
                if (std::max(std::abs(row), std::abs(column)) != ring || (map.isLineScan() && row != 0))
                    continue;
                const int nextX = x + column * step;
                const int nextY = y + row * step;
                const bool isInside = nextX >= 0 && nextY >= 0 && nextX < static_cast<int>(place.width)
                    && nextY < static_cast<int>(place.height);
                if (isInside && !isDefect(map, std::int64_t(place.x) + nextX, std::int64_t(place.y) + nextY))
                    values.push_back(valueAt(nextX, nextY));
            }
        }
    }
    std::sort(values.begin(), values.end());
    return values;
}

double middle(const std::vector<double> &sorted)
{
    return (sorted[(sorted.size() - 1) / 2] + sorted[sorted.size() / 2]) / 2;
}

/// Returns the values of a field, in which defect pixels have the medians of their neighbours.
std::vector<double> withoutDefects(
    const std::vector<double> &values, const FlatField &field, const std::optional<DefectMap> &defects)
{
    std::vector<double> result = values;
    if (!defects)
        return result;
    const Region place{field.offsetX, field.offsetY, field.width, field.height};
    const auto valueAt = [&](int x, int y) {
        return values[static_cast<std::size_t>(y) * field.width + static_cast<std::size_t>(x)];
    };
    for (int y = 0; y < static_cast<int>(field.height); ++y) {
        for (int x = 0; x < static_cast<int>(field.width); ++x) {
            if (!isDefect(*defects, std::int64_t(field.offsetX) + x, std::int64_t(field.offsetY) + y))
                continue;
            const std::vector<double> around = goodNeighbours(*defects, place, 2, x, y, valueAt);
            if (!around.empty())
                result[static_cast<std::size_t>(y) * field.width + static_cast<std::size_t>(x)]
                    = middle(around);
        }
    }
    return result;
}

} // namespace

ReferenceCorrection::ReferenceCorrection(
    const Correction &correction, const Region &place, int depth, int step, const RawValue &rawValue)
    : m_correction(correction), m_place(place), m_depth(depth), m_step(step), m_rawValue(rawValue)
{
    if (!correction.flatField())
        return;
    const FlatField &field = *correction.flatField();
    std::vector<double> gains(field.gain.begin(), field.gain.end());
    std::vector<double> dark;
    for (std::size_t i = 0; i < gains.size(); ++i)
        dark.push_back(field.blackLevel - double(field.offset[i]) * gains[i]);
    m_gains = withoutDefects(gains, field, correction.defects());
    m_dark = withoutDefects(dark, field, correction.defects());
}

double ReferenceCorrection::value(int x, int y) const
{
    const double raw = repaired(x, y);
    if (!m_correction.flatField())
        return raw;
    const int sensorX = static_cast<int>(m_place.x) + x;
    const int sensorY = static_cast<int>(m_place.y) + y;
    const double scale = std::ldexp(1, m_depth - static_cast<int>(m_correction.flatField()->depth));
    const double corrected
        = raw * fieldValue(m_gains, sensorX, sensorY) + fieldValue(m_dark, sensorX, sensorY) * scale;
    return std::clamp(corrected, 0.0, std::ldexp(1, m_depth) - 1);
}

double ReferenceCorrection::repaired(int x, int y) const
{
    const std::optional<DefectMap> &defects = m_correction.defects();
    if (!defects || !isDefect(*defects, std::int64_t(m_place.x) + x, std::int64_t(m_place.y) + y))
        return m_rawValue(x, y);
    const std::vector<double> around = goodNeighbours(*defects, m_place, m_step, x, y, m_rawValue);
    return around.empty() ? m_rawValue(x, y) : std::ceil(middle(around));
}

double ReferenceCorrection::fieldValue(const std::vector<double> &values, int sensorX, int sensorY) const
{
    const FlatField &field = *m_correction.flatField();
    const int row = field.isLineScan() ? 0 : sensorY - static_cast<int>(field.offsetY);
    const int column = sensorX - static_cast<int>(field.offsetX);
    return values[static_cast<std::size_t>(row) * field.width + static_cast<std::size_t>(column)];
}
