#pragma once

#include "sdk/image/RawImage.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// What one measured component is. Bayer pictures are measured by colour, before demosaicing.
enum class MeasuredComponent : std::uint8_t
{
    Grey,
    Red,
    Green,
    Blue,
    Alpha,
    Luma,
    ChromaBlue, ///< U or Cb.
    ChromaRed, ///< V or Cr.
    First, ///< Components of other formats, in the order of their format.
    Second,
    Third,
    Fourth
};

/// How often each value occurs in a component.
struct ComponentHistogram
{
    MeasuredComponent component = MeasuredComponent::Grey;
    std::vector<std::uint64_t> counts; ///< Bins of equal width over the range of the format.
    std::uint64_t pixels = 0;
    /// Share of the pixels at the lowest value of the format or below its range, 0 to 1; 0 for floating-point
    /// numbers. The range of luma can begin above 0.
    double darkShare = 0;
    double brightShare = 0; ///< The same for the highest value.
};

/// Formats of up to 12 bits have one bin for each value, all others 4096 bins. The range of floating-point
/// numbers is that of the whole picture.
struct Histogram
{
    double lowest = 0; ///< Lower end of the first bin.
    double highest = 0; ///< The highest value that the format has.
    double binWidth = 1; ///< Difference between the lower ends of two bins.
    std::vector<ComponentHistogram> components;
};

/// Statistics of one component in a region.
struct ComponentStatistics
{
    MeasuredComponent component = MeasuredComponent::Grey;
    std::uint64_t pixels = 0;
    double minimum = 0;
    double maximum = 0;
    double mean = 0;
    double deviation = 0; ///< Standard deviation of the sample (n - 1); 0 for one pixel.
};

/// The values along a line, at a distance of one pixel.
struct LineProfile
{
    struct Curve
    {
        MeasuredComponent component = MeasuredComponent::Grey;
        std::vector<double> positions; ///< Pixels from the start of the line.
        std::vector<double> values;
    };
    std::vector<Curve> curves;
};

/// The ends of a line, both inside the picture.
struct MeasuredLine
{
    std::uint32_t x1 = 0;
    std::uint32_t y1 = 0;
    std::uint32_t x2 = 0;
    std::uint32_t y2 = 0;
};

/// What is to be measured.
struct MeasureRequest
{
    bool wantsHistogram = false;
    std::optional<Region>
        region; ///< Where histogram and statistics are measured; the whole picture if empty.
    bool wantsStatistics = false;
    std::optional<MeasuredLine> line;

    bool isEmpty() const { return !wantsHistogram && !wantsStatistics && !line; }
};

/// What was measured in one picture. Regions and lines are cut to the picture. Components of which no pixel
/// was measured are missing.
struct Measurements
{
    std::uint64_t frameId = 0; ///< Set by those who know the image; 0 from measure().
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint32_t pixelFormat = 0;
    std::optional<Histogram> histogram;
    std::vector<ComponentStatistics> statistics;
    std::optional<LineProfile> profile;
};

/// Measures a picture at its full depth. Lines that an incomplete picture lacks, and what is not a number,
/// are left out. Thread-safe; blocks for some milliseconds per megapixel. PictureMeter is faster for many
/// pictures.
Measurements measure(const RawImage &picture, const MeasureRequest &request);
