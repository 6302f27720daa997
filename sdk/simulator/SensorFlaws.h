#pragma once

#include "sdk/simulator/SceneNoise.h"
#include "sdk/simulator/SensorModel.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>
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
    const std::vector<DefectPixel> &defects() const { return m_defects; }

    /// Returns the range of the line's pixels in defects(): the first index, and the index after the last
    /// one.
    std::pair<std::size_t, std::size_t> defectsOfLine(int y) const;

    /// Returns true if the blinking pixel with this index in defects() is bright in the picture.
    bool isBlinkingOn(std::size_t index, std::uint64_t frameNumber) const;

    /// Returns the share of the light that reaches the pixel; 1 in the brightest place.
    double shading(int x, int y) const { return columnShading(x) * lineShading(y); }

    /// Returns the two factors of shading().
    double columnShading(int x) const;
    double lineShading(int y) const;

    /// Returns the sensitivity of the pixels, about 1.
    double photoResponse(int x, int y) const { return photoResponseLine(y)[x]; }
    const float *photoResponseLine(int y) const { return m_photoResponse.line(lineKey(y)); }

    /// Returns the offsets of the pixels in electrons, about 0.
    double darkSignal(int x, int y) const { return darkSignalLine(y)[x]; }
    const float *darkSignalLine(int y) const { return m_darkSignal.line(lineKey(y)); }

    /// Returns the tap that reads out the column.
    int tap(int x) const { return x * m_model.taps / m_model.width; }

    /// Returns the column after the last one of the tap.
    int tapEnd(int tap) const { return ((tap + 1) * m_model.width + m_model.taps - 1) / m_model.taps; }

    /// Returns a tap's gain, about 1, and its offset in units of a 12-bit pixel.
    double tapGain(int tap) const;
    double tapOffset(int tap) const;

    /// Returns the factor by which dark current and hot pixels grow from 25 °C to the temperature.
    static double darkFactor(double temperature);

    /// Returns the position of the lens at which this place of the picture is sharp.
    double bestFocus(int x, int y) const;

    /// Returns the sensitivity of the red, green and blue pixels to white light, relative to green.
    static std::array<double, 3> colorResponse() { return {0.62, 1, 0.71}; }

private:
    std::uint64_t lineKey(int y) const
    {
        return scrambled(m_model.seed ^ static_cast<std::uint64_t>(y) << 32);
    }
    std::uint64_t key(std::uint64_t purpose, std::uint64_t index) const;
    void addDefects(DefectPixel::Kind kind, double perMegapixel);
    void addDefect(DefectPixel defect);
    void sortDefects();

    SensorModel m_model; // A line scan sensor has height 1 here.
    SceneNoise m_photoResponse;
    SceneNoise m_darkSignal;
    double m_centerX; // Brightest place.
    double m_centerY;
    double m_falloff; // Shading is exp(-m_falloff * distance²), so it is a product of two factors.
    double m_tiltRight; // Change of the best focus position over the width.
    double m_tiltDown;
    std::vector<DefectPixel> m_defects;
    std::vector<std::size_t> m_lineStarts; // Index of each line's first defect; one more entry than lines.
};
