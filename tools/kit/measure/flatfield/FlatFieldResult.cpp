#include "tools/kit/measure/flatfield/FlatFieldResult.h"

namespace {

using Json = nlohmann::ordered_json;

Json optionalJson(const std::optional<double> &value)
{
    return value ? Json(*value) : Json();
}

Json channelJson(const ChannelUniformity &channel)
{
    return {{"channel", channel.name}, {"darkLevel", channel.darkLevel}, {"brightLevel", channel.brightLevel},
        {"darkTemporalNoise", channel.darkNoise}, {"brightTemporalNoise", channel.brightNoise},
        {"systemGain", optionalJson(channel.systemGain)}, {"dsnu1288", channel.dsnu},
        {"prnu1288", channel.prnu}, {"pixelDsnu", channel.pixelDsnu}, {"pixelPrnu", channel.pixelPrnu},
        {"shading", channel.shading}};
}

Json uniformityJson(const Uniformity &uniformity)
{
    Json channels = Json::array();
    for (const ChannelUniformity &channel : uniformity.channels)
        channels.push_back(channelJson(channel));
    return {{"dsnu1288", uniformity.dsnu}, {"dsnu1288Electrons", optionalJson(uniformity.dsnuElectrons)},
        {"prnu1288", uniformity.prnu}, {"pixelDsnu", uniformity.pixelDsnu},
        {"pixelDsnuElectrons", optionalJson(uniformity.pixelDsnuElectrons)},
        {"pixelPrnu", uniformity.pixelPrnu}, {"shading", uniformity.shading}, {"channels", channels},
        {"horizontalProfile", uniformity.horizontal}, {"verticalProfile", uniformity.vertical}};
}

Json settingsJson(const ReferenceSettings &settings)
{
    return {{"exposureTime", settings.exposureTime}, {"changedForTheMeasurement", settings.switchedOff}};
}

} // namespace

nlohmann::ordered_json toJson(const FlatFieldResult &result)
{
    const FlatField &field = result.built.field;
    Json warnings = Json::array();
    for (const Sentence &warning : result.warnings)
        warnings.push_back(toEnglish(warning));
    return {{"pixelFormat", result.pixelFormat}, {"offsetX", field.offsetX}, {"offsetY", field.offsetY},
        {"width", field.width}, {"height", field.height}, {"depth", field.depth},
        {"blackLevel", field.blackLevel},
        {"detail", result.detail == GainDetail::EveryPixel ? "every-pixel" : "shading-only"},
        {"level", result.level == GainLevel::Mean ? "mean" : "brightest"}, {"darkImages", result.darkImages},
        {"brightImages", result.brightImages}, {"checkImages", result.checkImages},
        {"brightShare", result.brightShare}, {"dark", settingsJson(result.darkSettings)},
        {"bright", settingsJson(result.brightSettings)}, {"lowestGain", result.built.lowestGain},
        {"highestGain", result.built.highestGain}, {"limitedPixels", result.built.limitedPixels},
        {"defectPixels", result.built.defectPixels}, {"before", uniformityJson(result.before)},
        {"after", uniformityJson(result.after)}, {"warnings", warnings}};
}
