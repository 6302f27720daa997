#pragma once

#include "sdk/simulator/PixelPacking.h"
#include "sdk/simulator/RenderSettings.h"
#include "sdk/simulator/SceneCanvas.h"
#include "sdk/simulator/SceneReadout.h"
#include "sdk/simulator/SensorFlaws.h"
#include "sdk/simulator/SensorModel.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

/// Renders the pictures of one simulated camera. A picture depends only on the sensor model and the settings.
/// The first picture, and each first picture with another region, focus position or reversal, takes longer,
/// because the scene without noise is kept between pictures. Use each object on one thread at a time.
class SceneRenderer
{
public:
    explicit SceneRenderer(const SensorModel &model);
    SceneRenderer(const SceneRenderer &) = delete;
    SceneRenderer &operator=(const SceneRenderer &) = delete;

    /// Returns the flaws of the sensor, to compare measurements with them.
    const SensorFlaws &flaws() const { return m_flaws; }

    /// Renders one picture into a buffer of at least imageSize(settings) bytes. Lines follow each other
    /// without padding except to whole bytes. The region must lie on the sensor, and the sensor must offer
    /// the pixel format.
    void render(const RenderSettings &settings, std::uint8_t *buffer);

    /// Returns the size of a picture of all pixels.
    PictureSize pictureSize(const RenderSettings &settings) const;

    /// Returns by how many pixels of the sensor the scene is shifted to the left and up in a picture.
    struct Shift
    {
        int x;
        int y;
    };
    Shift sceneShift(std::uint64_t frameNumber) const;

private:
    /// The pixels of the sensor from which pixels of the picture are made.
    struct SensorRange
    {
        int first;
        int count;
    };
    /// A line of a colour picture before the colours are separated, with more pixels on both sides.
    struct MosaicLine
    {
        int y = -1; // Line of the picture; -1 if there is none yet.
        std::vector<float> values;
    };

    void prepare(const RenderSettings &settings, int x, int width, int y, int height);
    void renderPattern(const RenderSettings &settings, const PackedFormat &format, std::uint8_t *buffer);
    void renderMosaic(const RenderSettings &settings, const PackedFormat &format, std::uint8_t *buffer);
    void renderRgb(const RenderSettings &settings, const PackedFormat &format, std::uint8_t *buffer);
    void finishLine(const RenderSettings &settings, const PackedFormat &format, int y, const float *values,
        std::uint8_t *buffer);
    const float *mosaicLine(const RenderSettings &settings, int y);
    void readPictureLine(const RenderSettings &settings, int y, float *values);
    void readBinnedLine(const RenderSettings &settings, int y, float *values);
    /// `line` is a line of the sensor, or for line scan sensors of the picture.
    void readSensorLine(const RenderSettings &settings, int line, float *values);
    SensorRange sensorRange(int first, int count, int size, int binning, bool isReversed) const;
    int lineScanRow(const RenderSettings &settings, int line) const;
    void prepareGamma(double gamma, const PackedFormat &format);

    const SensorModel m_model;
    const int m_step; // Distance of pixels of one colour.
    const SensorFlaws m_flaws;
    SceneCanvas m_canvas;
    SceneReadout m_readout;
    std::vector<std::uint8_t> m_evenScene; // A line of the flat field.

    // These members describe the picture that is being rendered.
    Shift m_shift{};
    PictureSize m_size{};
    SensorRange m_columns{};
    int m_firstX = 0; // Columns of the picture that are computed.
    int m_columnCount = 0;
    std::vector<float> m_sensorLine;
    std::vector<float> m_pictureLine;
    std::vector<std::uint16_t> m_quantized;
    std::array<MosaicLine, 3> m_mosaicLines;

    // The last table of gamma.
    double m_gamma = 1;
    int m_gammaDepth = 0;
    std::vector<std::uint16_t> m_gammaTable; // Empty if gamma is 1.
};

/// Returns the number of bytes of a picture.
std::size_t imageSize(const RenderSettings &settings);
