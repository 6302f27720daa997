#include "tools/kit/measure/linescan/LineScanInputs.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

constexpr double pi = 3.14159265358979323846;

/// The numbers as the files name them.
struct InputName
{
    const char *name;
    double LineScanInputs::*number;
};
constexpr InputName inputNames[] = {
    {"speedMmPerS", &LineScanInputs::speed},
    {"pixelSizeUm", &LineScanInputs::pixelSize},
    {"magnification", &LineScanInputs::magnification},
    {"objectPixelUm", &LineScanInputs::objectPixel},
    {"encoderStepMm", &LineScanInputs::encoderStep},
    {"pulsesPerRevolution", &LineScanInputs::pulsesPerRevolution},
    {"rollerDiameterMm", &LineScanInputs::rollerDiameter},
};

bool isNegative(const LineScanInputs &inputs)
{
    return std::any_of(std::begin(inputNames), std::end(inputNames), [&inputs](const InputName &input) {
        const double number = inputs.*input.number;
        return !std::isfinite(number) || number < 0;
    });
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
    for (const InputName &input : inputNames)
        if (inputs.*input.number > 0)
            json[input.name] = inputs.*input.number;
    json["usesLongestExposure"] = inputs.usesLongestExposure;
    return json;
}

LineScanInputs lineScanInputs(const nlohmann::ordered_json &json)
{
    LineScanInputs inputs;
    if (!json.is_object())
        return inputs;
    const auto trigger = json.find("trigger");
    if (trigger != json.end() && *trigger == "encoder")
        inputs.trigger = LineScanInputs::Trigger::Encoder;
    for (const InputName &input : inputNames)
        if (const auto number = json.find(input.name); number != json.end() && number->is_number())
            inputs.*input.number = number->get<double>();
    const auto longest = json.find("usesLongestExposure");
    inputs.usesLongestExposure = longest != json.end() && *longest == true;
    return inputs;
}
