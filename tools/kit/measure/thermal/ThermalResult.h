#pragma once

#include "sdk/imagefile/CameraRecord.h"
#include "tools/kit/measure/thermal/ThermalMonitor.h"

#include <nlohmann/json.hpp>
#include <string>

/// Returns the name of the state as files contain it, for example "warming up".
const char *stateName(ThermalState state);

/// Returns the name of the level as files contain it, for example "alarm".
const char *alertName(AlertLevel level);

/// Returns the present report of one place. Values that are not known are null.
nlohmann::ordered_json toJson(const PlaceMonitor &monitor);

/// Returns what is known about the dark level; null without any level.
nlohmann::ordered_json toJson(const DarkSeries &series);

/// Returns the document of a monitoring, including the merged readings.
nlohmann::ordered_json thermalDocument(const CameraRecord &camera, const ThermalMonitor &monitor);

/// Returns the merged readings of all places as a table: place, times, mean, minimum, maximum and number.
std::string thermalCsv(const ThermalMonitor &monitor);
