#pragma once

#include "sdk/simulator/SensorModel.h"

#include <array>
#include <cstdint>

/// What the camera looks at.
enum class SceneTarget
{
    Chart, ///< A test chart that moves slowly.
    FlatField, ///< A surface of constant brightness.
    LensCap ///< No light.
};

/// The test patterns of the Standard Features Naming Convention.
enum class TestPattern
{
    Off,
    Black,
    White,
    GreyHorizontalRamp,
    GreyVerticalRamp,
    GreyHorizontalRampMoving,
    GreyVerticalRampMoving,
    ColorBar,
    FrameCounter ///< The live picture with the number of the frame in the upper left corner.
};

enum class BinningMode
{
    Sum,
    Average
};

/// Size of the picture of all pixels, after binning.
struct PictureSize
{
    int width;
    int height;
};

/// Everything that influences one picture.
struct RenderSettings
{
    // The region, in pixels after binning and reversal. For colour sensors, all four are even. For line scan
    // sensors, offsetY is 0 and height is the number of lines in a picture.
    int offsetX = 0;
    int offsetY = 0;
    int width = 0;
    int height = 0;
    int binningX = 1;
    int binningY = 1; ///< Not used for line scan sensors.
    BinningMode binningMode = BinningMode::Sum;
    bool isReversedX = false;
    bool isReversedY = false; ///< Not used for line scan sensors.
    std::uint32_t pixelFormat = 0x01080001; ///< A PFNC code of supportedPixelFormats().

    double exposureTime = 10000; ///< Microseconds.
    double gain = 1; ///< Linear, for all taps.
    std::array<double, SensorModel::maxTaps> tapGain{
        1, 1, 1, 1, 1, 1, 1, 1}; ///< Linear, in addition to gain.
    double blackLevel = 64; ///< Value of a dark pixel in units of a 12-bit pixel.
    std::array<double, SensorModel::maxTaps> tapBlackLevel{}; ///< The same for each tap, in addition.
    double gamma = 1; ///< Exponent that is applied to pixel values.
    std::array<double, 3> balanceRatio{1, 1, 1}; ///< Red, green, blue; linear.
    double focusPosition = 500;
    double temperature = 25; ///< Degrees Celsius.
    TestPattern testPattern = TestPattern::Off;
    SceneTarget target = SceneTarget::Chart;

    std::uint64_t frameNumber = 0; ///< Decides, with the sensor's seed, what moves and which noise there is.

    // Line scan sensors only.
    double linePosition = 0; ///< Position of the object at the first line, in pixels of the object plane.
    double lineStep = 1; ///< Movement of the object from line to line; 1 makes round objects round.
    double lineJitter = 0; ///< Standard deviation of each line's position; 0 with an encoder.
};
