#include "tools/kit/measure/taps/TapResult.h"

#include "sdk/imagefile/OutputFile.h"
#include "sdk/imagefile/Sidecar.h"

#include <nlohmann/json.hpp>

void TapResult::add(const TapBalance &balance)
{
    const bool isGain = balance.control.setting == TapSetting::Gain;
    (isGain ? bright : dark) = balance.after;
    (isGain ? gain : blackLevel) = balance;
}

double TapResult::darkLevel() const
{
    if (!dark)
        return 0;
    double sum = 0;
    for (const TapMeasurement::Tap &tap : dark->taps)
        sum += tap.mean / static_cast<double>(dark->taps.size());
    return sum;
}

std::string layoutName(const TapLayout &layout)
{
    const auto part = [](unsigned zones, char direction, unsigned taps) {
        return std::to_string(zones) + direction + (taps > 1 ? std::to_string(taps) : "");
    };
    return part(layout.zonesX, 'X', layout.tapsX) + '_' + part(layout.zonesY, 'Y', layout.tapsY);
}

nlohmann::ordered_json tapDocument(const CameraRecord &camera, const TapResult &result)
{
    nlohmann::ordered_json content{{"layout", layoutName(result.layout)}};
    if (result.bright)
        content["bright"] = toJson(*result.bright);
    if (result.dark)
        content["dark"] = toJson(*result.dark);
    if (result.gain)
        content["gain"] = toJson(*result.gain);
    if (result.blackLevel)
        content["blackLevel"] = toJson(*result.blackLevel);
    return {{"format", "corvix-x-taps"}, {"version", 1}, {"created", utcNow()},
        {"camera", cameraJson(camera)}, {"result", std::move(content)}};
}

std::string writeTapTable(const std::string &path, const TapResult &result)
{
    const std::string table = result.bright ? toCsv(*result.bright, result.gain)
        : result.dark                       ? toCsv(*result.dark, result.blackLevel)
                                            : std::string();
    OutputFile file;
    const bool isWritten
        = file.createHidden(path) && file.append(table.data(), table.size()) && file.publish();
    return isWritten ? std::string() : file.problem();
}
