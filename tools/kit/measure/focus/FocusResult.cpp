#include "tools/kit/measure/focus/FocusResult.h"

#include "sdk/imagefile/OutputFile.h"
#include "sdk/imagefile/Sidecar.h"
#include "tools/kit/measure/focus/FocusText.h"

#include <algorithm>

namespace {
using Json = nlohmann::ordered_json;

constexpr const char *stateNames[] = {"usable", "no edges", "too dark", "clipped"};

Json toJson(const FocusPeak &peak)
{
    return {{"position", peak.position}, {"sharpness", peak.sharpness}, {"halfWidth", peak.halfWidth},
        {"isBracketed", peak.isBracketed}};
}

Json toJson(const FocusSurface &surface)
{
    return {{"centre", surface.center}, {"leftToRight", surface.right}, {"topToBottom", surface.down},
        {"tilt", surface.tilt()}, {"tiltAngle", surface.angle()},
        {"tiltDirection", surface.isTilted() ? directionName(surface.angle()) : "none"},
        {"tiltStandardError", surface.tiltDeviation}, {"curvature", surface.curvature},
        {"residual", surface.residual}};
}

Json analysisJson(const FocusAnalysis &analysis)
{
    Json json = Json::object();
    if (analysis.best)
        json["best"] = *analysis.best;
    if (analysis.total)
        json["peak"] = toJson(*analysis.total);
    if (analysis.surface)
        json["surface"] = toJson(*analysis.surface);
    return json;
}

Json regionJson(const FocusResult &result, std::size_t index)
{
    const RegionFocus &region = result.last.regions[index];
    const auto columns = static_cast<std::size_t>(result.last.grid.columns);
    Json json{{"column", index % columns + 1}, {"row", index / columns + 1}, {"x", region.area.x},
        {"y", region.area.y}, {"width", region.area.width}, {"height", region.area.height},
        {"state", stateNames[static_cast<std::size_t>(region.state)]}, {"sharpness", region.sharpness},
        {"brightness", region.brightness}};
    if (index < result.regionShares.size() && result.regionShares[index])
        json["shareOfPeak"] = *result.regionShares[index];
    if (!result.analysis || index >= result.analysis->regions.size())
        return json;
    if (const FocusAnalysis::RegionPeak &peak = result.analysis->regions[index]; peak.peak) {
        json["peak"] = toJson(*peak.peak);
        json["shareOfPeakAtBest"] = peak.shareAtBest;
    }
    return json;
}

Json cornersJson(const FocusResult &result)
{
    Json corners = Json::object();
    for (const GridCorner &corner : gridCorners(result.last.grid))
        if (corner.region < result.regionShares.size() && result.regionShares[corner.region])
            corners[corner.name] = *result.regionShares[corner.region];
    return corners;
}

std::string numberText(double number)
{
    return Json(number).dump();
}
} // namespace

FocusResult focusResult(const SweepResult &sweep)
{
    FocusResult result;
    result.last = sweep.last;
    result.axis = sweep.axis;
    result.position = sweep.bestPosition;
    result.samples = sweep.coarse;
    result.samples.insert(result.samples.end(), sweep.fine.begin(), sweep.fine.end());
    result.analysis = sweep.analysis;
    for (const FocusSample &sample : result.samples)
        result.peak = std::max(result.peak, sample.measurement.sharpness);
    for (const FocusAnalysis::RegionPeak &region : sweep.analysis.regions)
        result.regionShares.push_back(region.peak ? std::make_optional(region.shareAtBest) : std::nullopt);
    return result;
}

Json toJson(const FocusResult &result)
{
    const FocusMeasurement &last = result.last;
    Json json{{"columns", last.grid.columns}, {"rows", last.grid.rows}, {"sharpness", last.sharpness},
        {"brightness", last.brightness}, {"noise", last.noise}, {"clippedShare", last.clippedShare}};
    if (!last.problem.isEmpty())
        json["problem"] = toEnglish(last.problem);
    if (result.peak > 0) {
        json["peak"] = result.peak;
        json["shareOfPeak"] = last.sharpness / result.peak;
        json["cornerSharesOfPeak"] = cornersJson(result);
    }
    json["lens"] = result.axis ? result.axis->name : "by hand";
    json["positionUnit"] = result.axis ? result.axis->unit : "s";
    if (result.position)
        json["position"] = *result.position;
    if (result.analysis)
        json["analysis"] = analysisJson(*result.analysis);
    json["regions"] = Json::array();
    for (std::size_t i = 0; i < last.regions.size(); ++i)
        json["regions"].push_back(regionJson(result, i));
    return json;
}

Json resultJson(const FocusResult &result, const CameraRecord &camera)
{
    Json json = {{"format", "corvix-x-focus"}, {"version", 1}, {"created", utcNow()}};
    json.update(cameraJson(camera));
    json["result"] = toJson(result);
    return json;
}

std::string resultCsv(const FocusResult &result)
{
    std::string csv = result.axis ? "position,sharpness,brightness" : "seconds,sharpness,brightness";
    const auto columns = static_cast<std::size_t>(result.last.grid.columns);
    for (std::size_t i = 0; i < result.last.grid.size(); ++i)
        csv += ",row " + std::to_string(i / columns + 1) + " column " + std::to_string(i % columns + 1);
    csv += '\n';
    for (const FocusSample &sample : result.samples) {
        csv += numberText(sample.position) + ',' + numberText(sample.measurement.sharpness) + ','
            + numberText(sample.measurement.brightness);
        for (const RegionFocus &region : sample.measurement.regions) {
            const bool hasValue
                = region.state == RegionFocus::State::Usable || region.state == RegionFocus::State::NoEdges;
            csv += ',' + (hasValue ? numberText(region.sharpness) : std::string());
        }
        csv += '\n';
    }
    return csv;
}

std::string writeFocusCsv(const std::string &path, const FocusResult &result)
{
    const std::string csv = resultCsv(result);
    OutputFile file;
    if (file.createHidden(path) && file.append(csv.data(), csv.size()))
        file.publish();
    return file.problem();
}
