#include "tools/kit/measure/linescan/LineRatePlan.h"

#include "sdk/features/SettingLabel.h"
#include "sdk/imagefile/ValueJson.h"

#include <algorithm>

namespace {

const char *reasonText(RateReason reason)
{
    static constexpr const char *texts[] = {"none", "link", "exposure", "camera"};
    return texts[static_cast<std::size_t>(reason)];
}

nlohmann::ordered_json settingJson(const PlannedSetting &setting)
{
    nlohmann::ordered_json json{{"name", setting.name}};
    for (const SelectorSetting &selector : setting.selectors)
        json["selectors"][selector.name] = selector.value;
    json["before"] = valueJson(setting.before);
    json["value"] = valueJson(setting.value);
    return json;
}

} // namespace

std::string plannedValueText(const CvxCPP::NodeValue &value)
{
    const nlohmann::ordered_json json = valueJson(value);
    return json.is_string() ? json.get<std::string>() : json.dump();
}

std::string settingText(const PlannedSetting &setting)
{
    return settingLabel(setting.name, setting.selectors) + " = " + plannedValueText(setting.value);
}

bool LineRatePlan::needsPause() const
{
    return std::any_of(settings.begin(), settings.end(),
        [](const PlannedSetting &setting) { return setting.isLockedByStream; });
}

Sentence limitSentence(const RateLimit &limit, const RateFacts &facts)
{
    const SentenceNumber kilohertz{limit.rate / 1e3, limit.rate < 10e3 ? 2 : 1};
    switch (limit.reason) {
    case RateReason::Link:
        return {QT_TRANSLATE_NOOP("Sentence",
                    "The link carries %1 MB/s: at most %2 kHz with this width and pixel format. Choose a "
                    "smaller width, a pixel format with fewer bits, or a lower speed."),
            {SentenceNumber{facts.linkSpeed.value_or(0) / 1e6, 0}, kilohertz}};
    case RateReason::Exposure:
        return {QT_TRANSLATE_NOOP("Sentence",
                    "The exposure allows at most %1 kHz, because a line cannot be shorter than its exposure. "
                    "Shorten the exposure, and add light or gain."),
            {kilohertz}};
    case RateReason::Camera:
        return {QT_TRANSLATE_NOOP("Sentence",
                    "The camera takes at most %1 kHz with its present settings. Choose a lower speed or a "
                    "smaller magnification."),
            {kilohertz}};
    default:
        return {};
    }
}

nlohmann::ordered_json settingsJson(const std::vector<PlannedSetting> &settings)
{
    auto json = nlohmann::ordered_json::array();
    for (const PlannedSetting &setting : settings)
        json.push_back(settingJson(setting));
    return json;
}

nlohmann::ordered_json toJson(const LineRatePlan &plan)
{
    nlohmann::ordered_json json;
    const auto add = [&json](const char *name, const std::optional<double> &value) {
        if (value)
            json[name] = *value;
    };
    if (!plan.problem.isEmpty())
        json["problem"] = toEnglish(plan.problem);
    json["objectPixelUm"] = plan.objectPixel;
    add("wantedLineRateHz", plan.wantedRate);
    add("lineRateHz", plan.rate);
    add("longestExposureUs", plan.longestExposure);
    add("exposureUs", plan.exposure);
    add("deadTimeUs", plan.deadTime);
    add("wantedLinesPerPulse", plan.wantedRatio);
    if (plan.ratio)
        json["encoder"] = {{"linesPerPulse", plan.ratio->linesPerPulse()},
            {"countsPerPulse", plan.ratio->countsPerPulse}, {"multiplier", plan.ratio->multiplier},
            {"encoderDivider", plan.ratio->encoderDivider}, {"triggerDivider", plan.ratio->triggerDivider}};
    json["errorPercent"] = plan.errorPercent;
    if (plan.limit.reason != RateReason::None)
        json["limit"] = {{"reason", reasonText(plan.limit.reason)}, {"lineRateHz", plan.limit.rate}};
    add("highestSpeedMmPerS", plan.highestSpeed);
    json["warnings"] = nlohmann::ordered_json::array();
    for (const Sentence &warning : plan.warnings)
        json["warnings"].push_back(toEnglish(warning));
    json["settings"] = settingsJson(plan.settings);
    return json;
}
