#pragma once

#include "sdk/image/ImageConverter.h"
#include "tools/kit/measure/ComponentMap.h"

#include <vector>

/// Measures pictures whose components have up to 16 bits: counts how often each value occurs. The counts
/// contain all that histogram and statistics need, exactly.
class IntegerMeter
{
public:
    /// @param area Inside the picture; its size may be 0.
    void measure(
        const RawImage &picture, const Region &area, const MeasureRequest &request, Measurements &result);

private:
    struct Format;

    void count(const RawImage &picture, const Region &area, const Format &format);
    const std::uint32_t *countsOf(unsigned component, const Format &format);

    ImageConverter m_converter;
    std::vector<std::uint16_t> m_words; ///< One line.
    /// Two tables for each component, because counting equal values in one table is slow: every count would
    /// wait for the one before.
    std::vector<std::uint32_t> m_counts;
};
