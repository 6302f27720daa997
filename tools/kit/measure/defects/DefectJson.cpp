#include "tools/kit/measure/defects/DefectJson.h"

using Json = nlohmann::ordered_json;

namespace {

// In the order of DefectKind.
constexpr const char *kindNames[] = {"hot", "dead", "stuck", "blinking", "deviating"};
constexpr const char *shapeNames[] = {"cluster", "column", "line"};

Json optionalNumber(const std::optional<double> &number)
{
    return number ? Json(*number) : Json();
}

Json imagesJson(const DefectImages &images, double level, double noise, double spread)
{
    return {{"images", images.statistics.images()}, {"exposureTime", optionalNumber(images.exposureTime)},
        {"gain", optionalNumber(images.gain)}, {"level", level}, {"temporalNoise", noise},
        {"spread", spread}};
}

Json groupsJson(const std::vector<DefectGroup> &groups)
{
    Json list = Json::array();
    for (const DefectGroup &group : groups)
        list.push_back({{"shape", shapeNames[static_cast<std::size_t>(group.shape)]}, {"x", group.firstX},
            {"y", group.firstY}, {"width", group.lastX - group.firstX + 1},
            {"height", group.lastY - group.firstY + 1}, {"pixels", group.pixels}});
    return list;
}

} // namespace

Json toJson(
    const DefectImages &dark, const DefectImages &bright, const DefectFindings &findings, double threshold)
{
    const DefectMap map = defectMap(findings, threshold);
    const std::vector<DefectGroup> groups = defectGroups(map);
    const DefectCounts counts = countDefects(map, groups);
    Json kinds;
    for (std::size_t i = 0; i < counts.byKind.size(); ++i)
        kinds[kindNames[i]] = counts.byKind[i];
    return {{"threshold", threshold}, {"examinedPixels", findings.examinedPixels}, {"defects", counts.pixels},
        {"kinds", kinds}, {"clusters", counts.clusters}, {"columns", counts.columns}, {"lines", counts.lines},
        {"dark", imagesJson(dark, findings.darkLevel, findings.darkNoise, findings.darkSpread)},
        {"bright", imagesJson(bright, findings.brightLevel, findings.brightNoise, findings.brightSpread)},
        {"cameraCorrections", dark.cameraCorrections}, {"groups", groupsJson(groups)}};
}
