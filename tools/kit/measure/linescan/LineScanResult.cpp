#include "tools/kit/measure/linescan/LineScanResult.h"

#include "sdk/features/SettingLabel.h"
#include "sdk/imagefile/OutputFile.h"
#include "sdk/imagefile/Sidecar.h"

namespace {

/// Texts of the table contain no quotation marks, but may contain commas.
std::string cell(const std::string &text)
{
    return text.find(',') == std::string::npos ? text : '"' + text + '"';
}

std::string numberCell(double number)
{
    return nlohmann::json(number).dump();
}

void addSettings(std::string &csv, const char *state, const std::vector<PlannedSetting> &settings)
{
    for (const PlannedSetting &setting : settings) {
        csv += state;
        for (const std::string &text : {settingLabel(setting.name, setting.selectors),
                 plannedValueText(setting.before), plannedValueText(setting.value)})
            csv += ',' + cell(text);
        csv += '\n';
    }
}

void addTargets(std::string &csv, const char *when, const std::optional<Roundness> &roundness)
{
    if (!roundness)
        return;
    for (const RoundTarget &target : roundness->targets) {
        csv += when;
        for (const double number :
            {target.ellipse.centerX, target.ellipse.centerY, 2 * target.ellipse.halfWidth,
                2 * target.ellipse.halfHeight, target.heightToWidth(), target.turnDegrees(), target.residual})
            csv += ',' + numberCell(number);
        csv += '\n';
    }
}

} // namespace

nlohmann::ordered_json toJson(const Roundness &roundness)
{
    nlohmann::ordered_json json{{"heightToWidth", roundness.heightToWidth},
        {"errorPercent", roundness.errorPercent()}, {"rateFactor", roundness.rateFactor()},
        {"deviation", roundness.deviation}, {"turnDegrees", roundness.turnDegrees},
        {"images", roundness.images}};
    json["targets"] = nlohmann::ordered_json::array();
    for (const RoundTarget &target : roundness.targets)
        json["targets"].push_back({{"centerX", target.ellipse.centerX}, {"centerY", target.ellipse.centerY},
            {"width", 2 * target.ellipse.halfWidth}, {"height", 2 * target.ellipse.halfHeight},
            {"isBright", target.isBright}, {"residual", target.residual}});
    return json;
}

nlohmann::ordered_json resultJson(const LineScanResult &result, const CameraRecord &camera)
{
    nlohmann::ordered_json json{{"format", "corvix-x-linescan"}, {"version", 1}, {"created", utcNow()}};
    json.update(cameraJson(camera));
    json["result"] = {{"inputs", toJson(result.inputs)}, {"plan", toJson(result.plan)},
        {"written", settingsJson(result.written)}};
    if (result.before)
        json["result"]["before"] = toJson(*result.before);
    if (result.after)
        json["result"]["after"] = toJson(*result.after);
    return json;
}

std::string resultCsv(const LineScanResult &result)
{
    std::string csv = "state,setting,before,value\n";
    addSettings(csv, "written", result.written);
    addSettings(csv, "planned", result.plan.settings);
    csv += "\nmeasured,centerX,centerY,width,height,heightToWidth,turnDegrees,residual\n";
    addTargets(csv, "before", result.before);
    addTargets(csv, "after", result.after);
    return csv;
}

std::string tablePath(const std::string &resultPath)
{
    const std::size_t slash = resultPath.rfind('/');
    const std::size_t nameBegin = slash == std::string::npos ? 0 : slash + 1;
    const std::size_t dot = resultPath.rfind('.');
    const bool hasEnding = dot != std::string::npos && dot > nameBegin;
    return resultPath.substr(0, hasEnding ? dot : resultPath.size()) + ".csv";
}

std::string writeLineScanCsv(const std::string &path, const LineScanResult &result)
{
    const std::string csv = resultCsv(result);
    OutputFile file;
    if (file.createHidden(path) && file.append(csv.data(), csv.size()))
        file.publish();
    return file.problem();
}
