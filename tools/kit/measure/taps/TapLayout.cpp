#include "tools/kit/measure/taps/TapLayout.h"

#include <algorithm>
#include <regex>
#include <tuple>

namespace {

/// Returns the number in the text, or 1 if the text is empty.
unsigned numberOrOne(const std::string &text)
{
    return text.empty() ? 1U : static_cast<unsigned>(std::stoul(text));
}

/// The part of a SensorPlace that belongs to one direction.
struct PlaceInDirection
{
    std::uint32_t sensorSize;
    std::uint32_t offset;
    std::uint32_t binning;
    bool isReversed;
};

TapMap::Direction mapDirection(
    unsigned zones, unsigned taps, const PlaceInDirection &place, std::uint32_t size)
{
    TapMap::Direction direction;
    const std::uint64_t binning = std::max(place.binning, 1U);
    const std::uint64_t total = place.sensorSize > 0
        ? std::max<std::uint64_t>(place.sensorSize, binning * (place.offset + std::uint64_t(size)))
        : size;
    for (std::uint64_t i = 0; i < size; ++i) {
        std::uint64_t position = place.sensorSize > 0 ? (place.offset + i) * binning : i;
        if (place.isReversed)
            position = total - 1 - position;
        const std::uint64_t zone = position * zones / total;
        const std::uint64_t start = (zone * total + zones - 1) / zones;
        direction.zones.push_back(static_cast<unsigned>(zone));
        direction.taps.push_back(static_cast<unsigned>(zone * taps + (position - start) % taps));
    }
    return direction;
}

} // namespace

bool TapLayout::operator==(const TapLayout &other) const
{
    return std::tie(zonesX, tapsX, zonesY, tapsY)
        == std::tie(other.zonesX, other.tapsX, other.zonesY, other.tapsY);
}

std::optional<TapLayout> parseTapGeometry(const std::string &name)
{
    static const std::regex pattern(
        "(?:Geometry_)?([1-9][0-9]?)X([1-9][0-9]?)?[EM]?(?:_([1-9][0-9]?)Y([1-9][0-9]?)?[EM]?)?(?:_.*Z.*)?");
    std::smatch match;
    if (!std::regex_match(name, match, pattern))
        return std::nullopt;
    const TapLayout layout{
        numberOrOne(match[1]), numberOrOne(match[2]), numberOrOne(match[3]), numberOrOne(match[4])};
    return layout.tapCount() <= maxTaps ? std::optional(layout) : std::nullopt;
}

TapMap::TapMap(const TapLayout &layout, const SensorPlace &place, std::uint32_t width, std::uint32_t height)
    : m_layout(layout),
      m_columns(mapDirection(layout.zonesX, layout.tapsX,
          {place.sensorWidth, place.offsetX, place.binningX, place.isReversedX}, width)),
      // A line scan sensor has one line, and the picture has many.
      m_lines(mapDirection(layout.zonesY, layout.tapsY,
          {place.sensorHeight > 1 ? place.sensorHeight : 0, place.offsetY, place.binningY, place.isReversedY},
          height))
{ }

std::vector<std::size_t> zoneBorders(const TapMap::Direction &direction)
{
    std::vector<std::size_t> borders;
    for (std::size_t i = 1; i < direction.zones.size(); ++i) {
        if (direction.zones[i] != direction.zones[i - 1])
            borders.push_back(i);
    }
    return borders;
}
