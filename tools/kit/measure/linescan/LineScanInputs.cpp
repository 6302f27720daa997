#include "tools/kit/measure/linescan/LineScanInputs.h"

#include <cmath>

namespace {

constexpr double pi = 3.14159265358979323846;

bool isNegative(const LineScanInputs &inputs)
{
    for (const double value : {inputs.speed, inputs.pixelSize, inputs.magnification, inputs.objectPixel,
             inputs.encoderStep, inputs.pulsesPerRevolution, inputs.rollerDiameter})
        if (!std::isfinite(value) || value < 0)
            return true;
    return false;
}

} // namespace

std::optional<double> objectPixelOf(const LineScanInputs &inputs, double binning)
{
    if (inputs.objectPixel > 0)
        return inputs.objectPixel;
    if (inputs.pixelSize <= 0 || inputs.magnification <= 0)
        return std::nullopt;
    return inputs.pixelSize * binning / inputs.magnification;
}

std::optional<double> encoderStepOf(const LineScanInputs &inputs)
{
    if (inputs.encoderStep > 0)
        return inputs.encoderStep;
    if (inputs.pulsesPerRevolution <= 0 || inputs.rollerDiameter <= 0)
        return std::nullopt;
    return pi * inputs.rollerDiameter / inputs.pulsesPerRevolution;
}

Sentence problemOf(const LineScanInputs &inputs)
{
    if (isNegative(inputs))
        return {QT_TRANSLATE_NOOP("Sentence", "Every number must be greater than 0.")};
    if (!objectPixelOf(inputs, 1))
        return {QT_TRANSLATE_NOOP(
            "Sentence", "Enter the pixel size and the magnification, or the size of a pixel on the object.")};
    if (inputs.trigger == LineScanInputs::Trigger::LineRate && inputs.speed <= 0)
        return {QT_TRANSLATE_NOOP("Sentence", "Enter the speed of the object.")};
    if (inputs.trigger == LineScanInputs::Trigger::Encoder && !encoderStepOf(inputs))
        return {QT_TRANSLATE_NOOP("Sentence",
            "Enter the movement per encoder pulse, or the pulses per revolution and the diameter of the "
            "roller.")};
    return {};
}

nlohmann::ordered_json toJson(const LineScanInputs &inputs)
{
    const bool isEncoder = inputs.trigger == LineScanInputs::Trigger::Encoder;
    nlohmann::ordered_json json{{"trigger", isEncoder ? "encoder" : "lineRate"}};
    const auto add = [&json](const char *name, double value) {
        if (value > 0)
            json[name] = value;
    };
    add("speedMmPerS", inputs.speed);
    add("pixelSizeUm", inputs.pixelSize);
    add("magnification", inputs.magnification);
    add("objectPixelUm", inputs.objectPixel);
    add("encoderStepMm", inputs.encoderStep);
    add("pulsesPerRevolution", inputs.pulsesPerRevolution);
    add("rollerDiameterMm", inputs.rollerDiameter);
    json["usesLongestExposure"] = inputs.usesLongestExposure;
    return json;
}
