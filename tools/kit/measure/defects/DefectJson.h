#pragma once

#include "tools/kit/measure/defects/DefectGroups.h"
#include "tools/kit/measure/defects/DefectRun.h"

#include <nlohmann/json.hpp>

/// Returns the numbers of a measurement: conditions, noise, counts and groups.
nlohmann::ordered_json toJson(
    const DefectImages &dark, const DefectImages &bright, const DefectFindings &findings, double threshold);
