#pragma once

#include "tools/kit/assistant/HtmlReport.h"
#include "tools/kit/measure/linescan/LineScanResult.h"

/// Returns the report of a result on one page.
/// @param picture The picture with the drawn target; may be null.
HtmlReport lineScanReport(const LineScanResult &result, const CameraRecord &camera, const QImage &picture);
