#include "tools/kit/picture/BrightnessTables.h"

#include <cmath>

void BrightnessTables::set(unsigned depth, unsigned channels, const DisplaySettings &settings)
{
    for (unsigned channel = 0; channel < channels; ++channel)
        compute(channel, {depth, channels == 1 ? 1 : settings.gains[channel], settings.curve});
}

void BrightnessTables::compute(unsigned channel, const Key &key)
{
    const Key &present = m_keys[channel];
    const bool isPresent = present.depth == key.depth && present.gain == key.gain
        && present.curve.black == key.curve.black && present.curve.white == key.curve.white
        && present.curve.gamma == key.curve.gamma;
    if (isPresent)
        return;
    m_keys[channel] = key;
    std::vector<std::uint8_t> &table = m_tables[channel];
    table.resize(std::size_t(1) << key.depth);
    const double scale = key.gain / static_cast<double>(table.size() - 1);
    for (std::size_t value = 0; value < table.size(); ++value) {
        const double brightness = key.curve.brightness(static_cast<double>(value) * scale);
        table[value] = static_cast<std::uint8_t>(std::lround(255 * brightness));
    }
}
