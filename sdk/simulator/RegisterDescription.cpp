#include "sdk/simulator/RegisterDescription.h"

#include "sdk/simulator/DescriptionText.h"
#include "sdk/simulator/ZippedDescription.h"

namespace {

DescriptionKind kindOf(const CameraModel &model)
{
    return {model.sensor.isColor, model.sensor.isLineScan, model.sensor.taps, model.isBigEndianLink()};
}

} // namespace

std::string registerDescription(const CameraModel &model)
{
    const DescriptionKind kind = kindOf(model);
    return kind == zippedKind ? std::string(zippedDescription) : descriptionText(kind);
}

std::string registerDescriptionName(const CameraModel &model)
{
    const DescriptionKind kind = kindOf(model);
    return descriptionName(kind) + (kind == zippedKind ? ".zip" : ".xml");
}
