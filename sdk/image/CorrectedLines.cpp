#include "sdk/image/CorrectedLines.h"

#include "sdk/image/PackedField.h"

#include <algorithm>
#include <type_traits>

namespace {

/// Kernels may read so many samples behind the last one that they need.
constexpr std::size_t spareSamples = 32;

template <typename Sample>
Sample *grown(std::vector<Sample> &buffer, std::size_t count)
{
    if (buffer.size() < count + spareSamples)
        buffer.resize(count + spareSamples);
    return buffer.data();
}

} // namespace

bool CorrectedLines::setPicture(const RawImage &picture, const PixelLayout &layout)
{
    const Correction *const correction = m_correction.correction.get();
    if (!correction)
        return false;
    const std::string problem = correction->problem(
        picture.pixelFormat, m_correction.offsetX, m_correction.offsetY, picture.width, picture.height);
    if (!problem.empty())
        return false;
    m_depth = layout.format.depth;
    m_bytes.reader.setPicture(picture, layout);
    m_words.reader.setPicture(picture, layout);
    if (correction->defects())
        planRepairs(picture, layout);
    return true;
}

/// Finds the neighbours of the defect pixels, unless they are known from the picture before.
void CorrectedLines::planRepairs(const RawImage &picture, const PixelLayout &layout)
{
    const Region place{m_correction.offsetX, m_correction.offsetY, picture.width, picture.height};
    const int step = layout.format.kind == PixelKind::Bayer ? 2 : 1;
    const bool isPlanned = m_planned == m_correction.correction && m_plannedStep == step
        && m_plannedPlace.x == place.x && m_plannedPlace.y == place.y && m_plannedPlace.width == place.width
        && m_plannedPlace.height == place.height;
    if (isPlanned)
        return;
    m_repairs = DefectRepairs(*m_correction.correction->defects(), place, step);
    m_planned = m_correction.correction;
    m_plannedPlace = place;
    m_plannedStep = step;
}

template <typename Sample>
const Sample *CorrectedLines::read(std::uint32_t y, std::uint32_t x, std::uint32_t count)
{
    if constexpr (std::is_same_v<Sample, std::uint8_t>) {
        if (m_depth == 8)
            return correct(m_bytes, y, x, count);
        const auto *const words = reinterpret_cast<const std::uint8_t *>(correct(m_words, y, x, count));
        std::uint8_t *const reduced = grown(m_reduced, count);
        constexpr bool isBigEndian = __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__;
        m_words.reader.kernels().bytes.unpackWords({words, isBigEndian, m_depth, 0}, count, reduced);
        return reduced;
    } else {
        return correct(m_words, y, x, count);
    }
}

template <typename Value>
const Value *CorrectedLines::correct(
    Stage<Value> &stage, std::uint32_t y, std::uint32_t x, std::uint32_t count)
{
    const Value *values = stage.reader.read(0, y, x, count, stage.raw);
    Value *const output = grown(stage.corrected, count);
    if (repair(stage, values, y, x, count))
        values = output;
    const PackedField *const field = m_correction.correction->packedField();
    if (!field)
        return values;
    const FieldLine line = field->line(m_correction.offsetX + x, m_correction.offsetY + y, m_depth);
    stage.reader.kernels().template of<Value>().correctField(values, line, count, output);
    return output;
}

/// Copies the values to the output and replaces the defect ones. Returns false if there are none.
template <typename Value>
bool CorrectedLines::repair(
    Stage<Value> &stage, const Value *values, std::uint32_t y, std::uint32_t x, std::uint32_t count)
{
    if (!m_correction.correction->defects())
        return false;
    const DefectRepairs::Range repairs = m_repairs.inLine(y, x, count);
    if (repairs.isEmpty())
        return false;
    std::copy(values, values + count, stage.corrected.begin());
    const auto valueAt = [&stage](std::uint32_t column, std::uint32_t line) {
        return *stage.reader.read(0, line, column, 1, stage.neighbour);
    };
    for (const DefectRepairs::Repair &repair : repairs)
        stage.corrected[repair.x - x] = m_repairs.median<Value>(repair, y, valueAt);
    return true;
}

template const std::uint8_t *CorrectedLines::read(std::uint32_t, std::uint32_t, std::uint32_t);
template const std::uint16_t *CorrectedLines::read(std::uint32_t, std::uint32_t, std::uint32_t);
