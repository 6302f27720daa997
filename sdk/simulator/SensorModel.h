#pragma once

#include <cstdint>

/// A simulated sensor and its flaws. `seed` decides where the flaws are; SensorFlaws reports their places.
struct SensorModel
{
    int width = 2448; ///< Pixels; even for colour sensors.
    int height = 2048; ///< Pixels; even for colour sensors. Not used for line scan sensors.
    bool isColor = false; ///< True for a mosaic of colour filters that starts with red and green.
    bool isLineScan = false; ///< True for a sensor of one line, under which the scene passes.
    int taps = 1; ///< Vertical stripes of equal width that are read out separately; at most maxTaps.
    std::uint64_t seed = 1; ///< Two cameras of one model differ by their seed, for example the serial number.

    double sensitivity = 1; ///< Electrons per microsecond that a white surface generates in a pixel.
    double fullWell = 10000; ///< Electrons that reach the maximum pixel value with gain 1.
    double readNoise = 5; ///< Standard deviation in electrons.
    double darkCurrent = 4; ///< Electrons per second at 25 °C. Doubles every 8 K.

    double shading = 0; ///< Share of the light that is missing in the corners; 0.4 is a strong shading.
    double photoResponse = 0.005; ///< Standard deviation of the pixels' sensitivity (PRNU), relative.
    double darkSignal = 2; ///< Standard deviation of the pixels' offset (DSNU) in electrons.
    double tapMismatch = 0; ///< Largest relative deviation of a tap's gain from 1; 0.06 is clearly visible.

    double hotPixels = 0; ///< Hot pixels per megapixel.
    double stuckPixels = 0; ///< Pixels per megapixel that are always black or always white.
    double blinkingPixels = 0; ///< Pixels per megapixel that change between two levels.
    int stuckColumns = 0; ///< Whole columns that are always black.

    double focusPosition = 500; ///< Position of the lens at which the centre of the picture is sharp.
    double focusTilt = 0; ///< Difference of the best positions between two opposite edges or corners.
    double focusTiltAngle = 0; ///< Direction in which the best position rises; degrees, 0 right, 90 down.
    double blurPerStep
        = 0.05; ///< Radius of the blur in pixels for each step of the lens from the best position.

    static constexpr int maxTaps = 8;
};
