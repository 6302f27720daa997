#include "tools/kit/measure/thermal/ThermalResult.h"

#include "sdk/imagefile/Sidecar.h"

#include <utility>

using Json = nlohmann::ordered_json;

namespace {

Json readingsJson(const BoundedHistory &history)
{
    Json readings = Json::array();
    for (const HistoryPoint &point : history.points())
        readings.push_back({point.first, point.last, point.mean, point.minimum, point.maximum, point.count,
            point.isAfterGap});
    return readings;
}

/// Names of the columns of readingsJson() and thermalCsv().
constexpr const char *columns[]
    = {"firstSeconds", "lastSeconds", "mean", "minimum", "maximum", "readings", "isAfterGap"};

/// Numbers in the CSV file do not depend on the locale, because JSON numbers do not.
std::string csvRows(const std::string &name, const BoundedHistory &history)
{
    std::string text;
    for (const Json &reading : readingsJson(history)) {
        text += Json(name).dump();
        for (const Json &value : reading)
            text += ',' + value.dump();
        text += '\n';
    }
    return text;
}

} // namespace

const char *stateName(ThermalState state)
{
    constexpr const char *names[] = {"unknown", "warming up", "steady", "cooling"};
    return names[static_cast<std::size_t>(state)];
}

const char *alertName(AlertLevel level)
{
    constexpr const char *names[] = {"normal", "warning", "alarm"};
    return names[static_cast<std::size_t>(level)];
}

Json toJson(const PlaceMonitor &monitor)
{
    const PlaceReport &report = monitor.report();
    Json json;
    json["place"] = monitor.place();
    json["celsius"] = report.celsius ? Json(*report.celsius) : Json();
    json["state"] = stateName(report.state);
    json["alert"] = alertName(report.alert);
    json["kelvinPerMinute"] = report.slope ? Json(report.slope->perMinute) : Json();
    json["kelvinPerMinuteError"] = report.slope ? Json(report.slope->error) : Json();
    json["finalCelsius"] = report.forecast ? Json(report.forecast->end) : Json();
    json["finalCelsiusError"] = report.forecast ? Json(report.forecast->endError) : Json();
    json["timeConstant"] = report.forecast ? Json(report.forecast->timeConstant) : Json();
    json["timeConstantError"] = report.forecast ? Json(report.forecast->timeConstantError) : Json();
    json["secondsToSteady"] = report.secondsToSteady ? Json(*report.secondsToSteady) : Json();
    json["readings"] = monitor.history().count();
    return json;
}

Json toJson(const DarkSeries &series)
{
    if (series.levels().isEmpty())
        return {};
    const auto doubling = series.doubling();
    const auto noise = series.noise();
    const auto followed = series.followedAt();
    Json json;
    json["level"] = series.levels().newest().mean;
    json["levels"] = series.levels().count();
    json["noise"] = noise ? Json(*noise) : Json();
    json["followedAtSeconds"] = followed ? Json(*followed) : Json();
    json["kelvinPerDoubling"] = doubling ? Json(doubling->kelvin) : Json();
    json["kelvinPerDoublingError"] = doubling ? Json(doubling->error) : Json();
    json["offset"] = doubling ? Json(doubling->offset) : Json();
    json["signalAtHighest"] = doubling ? Json(doubling->signal) : Json();
    json["lowestCelsius"] = doubling ? Json(doubling->lowest) : Json();
    json["highestCelsius"] = doubling ? Json(doubling->highest) : Json();
    return json;
}

Json thermalDocument(const CameraRecord &camera, const ThermalMonitor &monitor)
{
    Json json;
    json["format"] = "corvix-x-temperatures";
    json["version"] = 1;
    json["created"] = utcNow();
    json.update(cameraJson(camera));
    json["start"] = monitor.start();
    Json result;
    result["places"] = Json::array();
    Json history;
    history["columns"] = columns;
    for (const PlaceMonitor &place : monitor.places()) {
        result["places"].push_back(toJson(place));
        history["places"].push_back(readingsJson(place.history()));
    }
    result["dark"] = toJson(monitor.dark());
    history["dark"] = readingsJson(monitor.dark().levels());
    json["result"] = std::move(result); // A new member moves the others in memory.
    json["history"] = std::move(history);
    return json;
}

std::string thermalCsv(const ThermalMonitor &monitor)
{
    std::string text = "name";
    for (const char *column : columns)
        text += std::string(",") + column;
    text += '\n';
    for (const PlaceMonitor &place : monitor.places())
        text += csvRows(place.place().empty() ? "temperature" : place.place(), place.history());
    return text + csvRows("dark level", monitor.dark().levels());
}
