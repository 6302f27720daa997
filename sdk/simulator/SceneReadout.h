#pragma once

#include "sdk/simulator/RenderSettings.h"
#include "sdk/simulator/SceneNoise.h"
#include "sdk/simulator/SensorFlaws.h"
#include "sdk/simulator/SensorModel.h"

#include <array>
#include <cstdint>
#include <vector>

/// The sensor: turns the light of the scene into values, with noise and flaws, line by line. The values have
/// units of a 12-bit pixel, no black level, and no limits.
class SceneReadout
{
public:
    /// `flaws` must outlive the readout.
    SceneReadout(const SensorModel &model, const SensorFlaws &flaws);

    /// Prepares the columns from `firstColumn` on for a picture. `mosaicX` and `mosaicY` are those of
    /// SceneCanvas::View.
    void beginPicture(const RenderSettings &settings, int firstColumn, int columns, int mosaicX, int mosaicY);

    /// Reads out one line. `sensorLine` is the line of the sensor, `pictureLine` distinguishes the lines of a
    /// picture, and `scene` are the pixels of SceneCanvas::line().
    void readLine(const std::uint8_t *scene, int sensorLine, int pictureLine, float *values) const;

private:
    /// Factors of the columns, in lines that begin with red, or with blue.
    struct Columns
    {
        std::vector<float> light; ///< Square root of the electrons for 1 in the scene.
        std::vector<float> gain; ///< 12-bit units per electron.
    };
    /// Neighbouring columns that belong to one tap.
    struct TapColumns
    {
        int first; ///< Counted from m_firstColumn.
        int count;
        double gain; ///< 12-bit units per electron.
        float offset; ///< 12-bit units.
    };
    void prepareTaps(const RenderSettings &settings);
    void prepareColumns(const RenderSettings &settings, int row, int mosaicX);
    void addDefects(int sensorLine, float *values) const;

    const SensorModel m_model;
    const SensorFlaws &m_flaws;
    SceneNoise m_noise;
    std::vector<float> m_columnShading; // Square roots.
    std::vector<float> m_lineShading; // Square roots.
    std::array<Columns, 2> m_columns;
    std::vector<TapColumns> m_taps;
    int m_firstColumn = 0;
    int m_count = 0;
    int m_mosaicY = 0;
    float m_darkMean = 0; // Electrons.
    float m_darkDeviation = 0; // Electrons.
    double m_darkSeconds = 0; // Exposure in seconds at 25 °C that gives the same dark signal.
    std::uint64_t m_frameNumber = 0;
    std::uint64_t m_frameKey = 0;
};
