#pragma once

#include "sdk/simulator/SensorModel.h"

#include <array>
#include <vector>

/// A pixel that deviates strongly from its neighbours.
struct DefectPixel
{
    enum class Kind
    {
        Hot, ///< Additional dark current, in electrons per second at 25 °C.
        StuckBlack,
        StuckWhite,
        Blinking ///< Additional electrons, present in about half of the pictures.
    };
    int x = 0;
    int y = 0;
    Kind kind = Kind::Hot;
    double strength = 0; ///< See the kinds; 0 for stuck pixels.
};

/// The true flaws of a simulated sensor. Coordinates are pixels of the whole sensor before binning and
/// reversal. The only line of a line scan sensor is line 0.
class SensorFlaws
{
public:
    explicit SensorFlaws(const SensorModel &model);

    /// Returns the defect pixels, sorted by line, then by column.
    const std::vector<DefectPixel> &defects() const;

    /// Returns true if the blinking pixel with this index in defects() is bright in the picture.
    bool isBlinkingOn(std::size_t index, std::uint64_t frameNumber) const;

    /// Returns the share of the light that reaches the pixel; 1 in the brightest place.
    double shading(int x, int y) const;

    /// Returns the pixel's sensitivity, about 1.
    double photoResponse(int x, int y) const;

    /// Returns the pixel's offset in electrons, about 0.
    double darkSignal(int x, int y) const;

    /// Returns the tap that reads out the column.
    int tap(int x) const;

    /// Returns a tap's gain, about 1, and its offset in units of a 12-bit pixel.
    double tapGain(int tap) const;
    double tapOffset(int tap) const;

    /// Returns the factor by which dark current and hot pixels grow from 25 °C to the temperature.
    static double darkFactor(double temperature);

    /// Returns the position of the lens at which this place of the picture is sharp.
    double bestFocus(int x, int y) const;

    /// Returns the balance ratios (red, green, blue) that make a grey surface grey.
    static std::array<double, 3> neutralBalance();
};
