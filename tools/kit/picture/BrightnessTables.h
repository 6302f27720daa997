#pragma once

#include "tools/kit/picture/DisplaySettings.h"

#include <array>
#include <cstdint>
#include <vector>

/// Tables from the values of a component to the brightness on the screen, with white balance and contrast.
class BrightnessTables
{
public:
    /// Computes the tables for values from 0 to 2^depth - 1; does nothing if they exist already. Grey
    /// pictures have no white balance.
    /// @param depth 1 to 16.
    void set(unsigned depth, unsigned channels, const DisplaySettings &settings);

    /// Returns the table of red, green or blue; grey has the first one.
    const std::uint8_t *table(unsigned channel) const { return m_tables[channel].data(); }

private:
    /// What a table was computed for.
    struct Key
    {
        unsigned depth = 0;
        double gain = 1;
        ContrastCurve curve;
    };

    void compute(unsigned channel, const Key &key);

    std::array<Key, 3> m_keys;
    std::array<std::vector<std::uint8_t>, 3> m_tables;
};
