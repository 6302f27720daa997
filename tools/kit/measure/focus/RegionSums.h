#pragma once

#include "tools/kit/measure/focus/FocusBlocks.h"

#include <array>
#include <cstddef>
#include <cstdint>

/// What the blocks of a region, or of the whole picture, add up to.
class RegionSums
{
public:
    static constexpr std::size_t maxPlanes = 4;

    /// Adds a block. @param noise Variance of the noise of its pixels.
    void addBlock(std::size_t plane, const FocusBlock &block, double noise);

    /// Adds how much the brightness of a block deviates from the line through its two neighbours: an even
    /// shading has no effect.
    void addCoarseStep(double before, double center, double after);

    /// Adds the place of a block, in blocks, with the energy of its edges.
    void addPlace(double column, double row, double energy);

    void add(const RegionSums &other);

    /// Returns the sum of the squared brightness of all colours above the black level.
    double squaredBrightness(double blackLevel) const;

    /// Returns the energy of the gradient of all colours without the noise's part; may be below 0 if there
    /// are no edges. See FocusMeter.
    double energy(bool isLineScan) const;

    /// Returns the mean of the pixel values.
    double mean() const;

    /// Returns the mean variance of the noise of a pixel, summed over the colours.
    double noise() const;

    /// Returns the mean of the squared coarse steps, without the noise's part.
    double coarseEnergy() const;

    double clippedShare() const;

    /// Returns the share of the edges' energy that lies outside the strongest blocks: near 0 if a defect
    /// pixel is all there is.
    double spread() const;

    struct Place
    {
        double column;
        double row;
    };

    /// Returns where the edges are: the centre of gravity of their energy; `usual` if there are none.
    Place place(const Place &usual) const;

private:
    struct Plane
    {
        double pixels = 0;
        double sum = 0;
        double across = 0;
        double acrossCount = 0;
        double down = 0;
        double downCount = 0;
        double noise = 0; // Variance times pixels.

        double mean() const { return pixels > 0 ? sum / pixels : 0; }
        double noiseVariance() const { return pixels > 0 ? noise / pixels : 0; }
    };
    std::array<Plane, maxPlanes> m_planes;
    std::size_t m_planeCount = 0;
    double m_clipped = 0;
    double m_coarse = 0;
    double m_coarseCount = 0;
    double m_weight = 0;
    std::array<double, 3> m_strongest{}; // Energies of blocks; a pixel is a neighbour in up to three.
    double m_weightedColumn = 0;
    double m_weightedRow = 0;
};
