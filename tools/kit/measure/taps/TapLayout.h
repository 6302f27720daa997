#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// How the taps of a sensor share its pixels. A zone is a part of the picture that is read out by taps of its
/// own; within a zone, neighbouring pixels go to its taps in turn.
struct TapLayout
{
    unsigned zonesX = 1; ///< Zones side by side.
    unsigned tapsX = 1; ///< Taps that read neighbouring columns of a zone.
    unsigned zonesY = 1; ///< Zones one above the other.
    unsigned tapsY = 1; ///< Taps that read neighbouring lines of a zone.

    unsigned columns() const { return zonesX * tapsX; }
    unsigned lines() const { return zonesY * tapsY; }
    unsigned tapCount() const { return columns() * lines(); }
    bool operator==(const TapLayout &other) const;
};

constexpr unsigned maxTaps = 64;

/// Returns the layout of a value of DeviceTapGeometry, for example Geometry_2X2E_1Y: the GenICam Standard
/// Features Naming Convention (SFNC) writes for each direction the number of zones, X or Y, the number of
/// taps of a zone if it is not 1, and E or M for readout from both ends or from the middle, which decides the
/// order in time only. Returns nothing for other texts and for more than maxTaps taps.
std::optional<TapLayout> parseTapGeometry(const std::string &name);

/// Where the picture is on the sensor.
struct SensorPlace
{
    std::uint32_t sensorWidth = 0; ///< Pixels of the whole sensor; 0 if the picture is all that is known.
    std::uint32_t sensorHeight = 0;
    std::uint32_t offsetX = 0; ///< Offset of the picture, after binning and reversal.
    std::uint32_t offsetY = 0;
    std::uint32_t binningX = 1; ///< Sensor columns per column of the picture, also by decimation.
    std::uint32_t binningY = 1;
    bool isReversedX = false;
    bool isReversedY = false;
};

/// The tap of each pixel of a picture.
class TapMap
{
public:
    TapMap() = default;
    TapMap(const TapLayout &layout, const SensorPlace &place, std::uint32_t width, std::uint32_t height);

    /// The taps are numbered from 0: from left to right, then from top to bottom.
    unsigned tapAt(std::size_t x, std::size_t y) const
    {
        return m_lines.taps[y] * m_layout.columns() + m_columns.taps[x];
    }
    const TapLayout &layout() const { return m_layout; }

    /// One direction of the picture.
    struct Direction
    {
        std::vector<unsigned> zones; ///< Zone of each column or line.
        std::vector<unsigned> taps; ///< Zone * taps per zone + tap within the zone.
    };
    const Direction &columns() const { return m_columns; }
    const Direction &lines() const { return m_lines; }

private:
    TapLayout m_layout;
    Direction m_columns;
    Direction m_lines;
};

/// Returns the positions at which a zone ends and the next one begins.
std::vector<std::size_t> zoneBorders(const TapMap::Direction &direction);
