#pragma once

#include "sdk/imagefile/CameraRecord.h"
#include "tools/kit/measure/defects/DefectGroups.h"
#include "tools/kit/measure/defects/DefectRun.h"

#include <memory>

/// A measurement and what it means at the chosen threshold.
struct DefectResult
{
    std::shared_ptr<const DefectImages> dark;
    std::shared_ptr<const DefectImages> bright;
    DefectFindings findings;
    CameraRecord camera; ///< The camera and its settings before the bright images.

    double threshold = usualThreshold;
    DefectMap map;
    std::vector<DefectGroup> groups;
    DefectCounts counts;

    void setThreshold(double value)
    {
        threshold = value;
        map = defectMap(findings, value);
        groups = defectGroups(map);
        counts = countDefects(map, groups);
    }
};
