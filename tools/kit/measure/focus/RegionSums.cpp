#include "tools/kit/measure/focus/RegionSums.h"

#include <algorithm>

namespace {
double ratio(double sum, double count)
{
    return count > 0 ? sum / count : 0;
}
} // namespace

void RegionSums::addBlock(std::size_t plane, const FocusBlock &block, double noise)
{
    m_planeCount = std::max(m_planeCount, plane + 1);
    Plane &sums = m_planes.at(plane);
    sums.pixels += FocusBlock::pixels;
    sums.sum += block.sum;
    sums.across += block.across;
    sums.acrossCount += block.acrossCount;
    sums.down += block.down;
    sums.downCount += block.downCount;
    sums.noise += noise * FocusBlock::pixels;
    m_clipped += block.clipped;
}

void RegionSums::addCoarseStep(double before, double center, double after)
{
    const double difference = before - 2 * center + after;
    m_coarse += difference * difference;
    ++m_coarseCount;
}

void RegionSums::addPlace(double column, double row, double energy)
{
    m_weight += energy;
    const auto weakest = std::min_element(m_strongest.begin(), m_strongest.end());
    *weakest = std::max(*weakest, energy);
    m_weightedColumn += energy * column;
    m_weightedRow += energy * row;
}

void RegionSums::add(const RegionSums &other)
{
    m_planeCount = std::max(m_planeCount, other.m_planeCount);
    for (std::size_t i = 0; i < m_planeCount; ++i) {
        const Plane &from = other.m_planes.at(i);
        Plane &to = m_planes.at(i);
        to.pixels += from.pixels;
        to.sum += from.sum;
        to.across += from.across;
        to.acrossCount += from.acrossCount;
        to.down += from.down;
        to.downCount += from.downCount;
        to.noise += from.noise;
    }
    m_clipped += other.m_clipped;
    m_coarse += other.m_coarse;
    m_coarseCount += other.m_coarseCount;
    m_weight += other.m_weight;
    m_weightedColumn += other.m_weightedColumn;
    m_weightedRow += other.m_weightedRow;
}

double RegionSums::squaredBrightness(double blackLevel) const
{
    double sum = 0;
    for (std::size_t i = 0; i < m_planeCount; ++i) {
        const double brightness = std::max(0.0, m_planes.at(i).mean() - blackLevel);
        sum += brightness * brightness;
    }
    return sum;
}

double RegionSums::energy(bool isLineScan) const
{
    double energy = 0;
    for (std::size_t i = 0; i < m_planeCount; ++i) {
        const Plane &plane = m_planes.at(i);
        energy += ratio(plane.across, plane.acrossCount) - 2 * plane.noiseVariance();
        if (!isLineScan)
            energy += ratio(plane.down, plane.downCount) - 2 * plane.noiseVariance();
    }
    return energy;
}

double RegionSums::mean() const
{
    double sum = 0;
    for (std::size_t i = 0; i < m_planeCount; ++i)
        sum += m_planes.at(i).mean();
    return ratio(sum, static_cast<double>(m_planeCount));
}

double RegionSums::noise() const
{
    double sum = 0;
    for (std::size_t i = 0; i < m_planeCount; ++i)
        sum += m_planes.at(i).noiseVariance();
    return sum;
}

double RegionSums::coarseEnergy() const
{
    const double planes = static_cast<double>(std::max<std::size_t>(1, m_planeCount));
    const double noise = 6 * this->noise() / (planes * planes * FocusBlock::pixels);
    return std::max(0.0, ratio(m_coarse, m_coarseCount) - noise);
}

double RegionSums::clippedShare() const
{
    double pixels = 0;
    for (std::size_t i = 0; i < m_planeCount; ++i)
        pixels += m_planes.at(i).pixels;
    return ratio(m_clipped, pixels);
}

double RegionSums::spread() const
{
    const double strongest = m_strongest[0] + m_strongest[1] + m_strongest[2];
    return m_weight > 0 ? 1 - strongest / m_weight : 0;
}

RegionSums::Place RegionSums::place(const Place &usual) const
{
    if (m_weight <= 0)
        return usual;
    return {m_weightedColumn / m_weight, m_weightedRow / m_weight};
}
