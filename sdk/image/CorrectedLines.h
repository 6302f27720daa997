#pragma once

#include "sdk/image/ComponentReader.h"
#include "sdk/image/Correction.h"
#include "sdk/image/DefectRepairs.h"

/// Reads corrected lines of pictures with one value per pixel. The values are corrected at their full depth,
/// and only then reduced to 8 bits.
class CorrectedLines
{
public:
    explicit CorrectedLines(const PixelKernels &kernels) : m_bytes(kernels), m_words(kernels) { }

    /// Applies to the pictures from the next setPicture() on.
    void setCorrection(const PlacedCorrection &correction) { m_correction = correction; }

    /// Returns false if there is no correction, or none that fits the picture. Then read() must not be used.
    bool setPicture(const RawImage &picture, const PixelLayout &layout);

    /// Returns `count` samples of line `y` from column `x` on, which are valid until the next call. Some
    /// bytes behind them are readable.
    template <typename Sample>
    const Sample *read(std::uint32_t y, std::uint32_t x, std::uint32_t count);

private:
    /// What is needed to correct values of this type.
    template <typename Value>
    struct Stage
    {
        explicit Stage(const PixelKernels &kernels) : reader(kernels) { }

        ComponentReader<Value> reader;
        std::vector<Value> raw;
        std::vector<Value> neighbour;
        std::vector<Value> corrected;
    };

    template <typename Value>
    const Value *correct(Stage<Value> &stage, std::uint32_t y, std::uint32_t x, std::uint32_t count);
    template <typename Value>
    bool repair(
        Stage<Value> &stage, const Value *values, std::uint32_t y, std::uint32_t x, std::uint32_t count);
    void planRepairs(const RawImage &picture, const PixelLayout &layout);

    PlacedCorrection m_correction;
    unsigned m_depth = 8; ///< Depth of the picture in bits.
    Stage<std::uint8_t> m_bytes;
    Stage<std::uint16_t> m_words;
    std::vector<std::uint8_t> m_reduced;
    DefectRepairs m_repairs;
    /// What the repairs were planned for.
    std::shared_ptr<const Correction> m_planned;
    Region m_plannedPlace;
    int m_plannedStep = 0;
};
