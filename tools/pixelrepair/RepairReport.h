#pragma once

#include "tools/pixelrepair/DefectResult.h"

#include <QCoreApplication>
#include <QImage>

#include <string>

/// The report of a measurement: a page with the counts, the conditions and a picture of the map.
class RepairReport
{
    Q_DECLARE_TR_FUNCTIONS(RepairReport)

public:
    /// Returns the sensor with a dot for each defect pixel, on white.
    static QImage mapPicture(const DefectMap &map);

    /// Writes the HTML file. Returns why that failed; empty if it succeeded.
    static std::string write(const std::string &path, const DefectResult &result);
};
