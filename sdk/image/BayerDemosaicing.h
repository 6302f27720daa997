#pragma once

#include "sdk/image/ImageConverter.h"
#include "sdk/image/LineReader.h"

/// Finds the missing colours of a Bayer picture line by line. Neighbours beyond the border are mirrored at
/// the outermost pixels, so that they have the colour that the pattern would have there. A picture of one
/// column or line has only pixels of two colours; the third one takes what is there.
template <typename Sample>
class BayerDemosaicing
{
public:
    /// Chooses the columns and starts a new picture. The reader has to have the picture already.
    void start(LineReader<Sample> &reader, std::uint32_t x, std::uint32_t width, Demosaicing method);

    /// Returns red, green and blue of the pixels of line `y` of the picture, which stay valid until the next
    /// call. Fast if the lines are asked for one after the other.
    std::array<const Sample *, 3> line(std::uint32_t y);

private:
    static constexpr std::uint32_t margin = 3; ///< Pixels beside the region that the result depends on.
    static constexpr std::int64_t noLine = -2;

    /// A line that is kept, because the lines around it need it too.
    struct KeptLine
    {
        std::int64_t y = noLine;
        std::vector<Sample> samples;
    };

    const Sample *rawLine(std::int64_t y);
    const Sample *greenLine(std::int64_t y);
    unsigned firstGreen(std::int64_t y) const;

    LineReader<Sample> *m_reader = nullptr;
    std::uint32_t m_x = 0;
    std::uint32_t m_width = 0;
    Demosaicing m_method = Demosaicing::Bilinear;
    std::int32_t m_maximum = 0;
    std::array<KeptLine, 8> m_raw; ///< Line y is in entry y % 8; up to 7 lines in sequence are needed.
    std::array<KeptLine, 4> m_green; ///< The same, for up to 3 lines.
    std::array<std::vector<Sample>, 3> m_colors;
};

extern template class BayerDemosaicing<std::uint8_t>;
extern template class BayerDemosaicing<std::uint16_t>;
