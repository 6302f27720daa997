#pragma once

#include "tools/kit/measure/run/Sentence.h"

#include <nlohmann/json.hpp>
#include <optional>

/// What a person knows about a line scan machine. Lengths on the object are millimetres unless a name says
/// otherwise; 0 stands for a number that was not given.
struct LineScanInputs
{
    /// What starts a line.
    enum class Trigger
    {
        LineRate, ///< The camera's own clock.
        Encoder ///< The pulses of an encoder that measures the movement.
    };
    Trigger trigger = Trigger::LineRate;

    double speed = 0; ///< Speed of the object, mm/s; with an encoder, the highest one, which may be unknown.

    double pixelSize = 0; ///< Width of a pixel of the sensor, in micrometres.
    double magnification = 0; ///< Size of the image on the sensor divided by the size of the object.
    double objectPixel = 0; ///< Micrometres of the object per pixel of the picture; replaces the two above.

    double encoderStep = 0; ///< Movement per pulse, that is per cycle of one signal of the encoder.
    double pulsesPerRevolution = 0; ///< Replaces the step, together with the diameter.
    double rollerDiameter = 0;

    bool usesLongestExposure = false; ///< Otherwise, the exposure is only shortened if it has to be.
};

/// Returns the micrometres of the object that one pixel of the picture covers: pixel size times binning
/// divided by the magnification.
/// @param binning Pixels of the sensor per pixel of the picture, across the movement.
std::optional<double> objectPixelOf(const LineScanInputs &inputs, double binning);

/// Returns the movement per pulse in millimetres: pi times the diameter divided by the pulses per revolution.
std::optional<double> encoderStepOf(const LineScanInputs &inputs);

/// Returns which number is missing or impossible; empty if the inputs are complete.
Sentence problemOf(const LineScanInputs &inputs);

nlohmann::ordered_json toJson(const LineScanInputs &inputs);

/// Returns the inputs that toJson() has returned. What is missing or damaged stays 0.
LineScanInputs lineScanInputs(const nlohmann::ordered_json &json);
