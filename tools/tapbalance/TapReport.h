#pragma once

#include "sdk/imagefile/CameraRecord.h"
#include "tools/kit/assistant/HtmlReport.h"
#include "tools/kit/measure/taps/TapResult.h"

#include <QCoreApplication>
#include <QImage>

/// The report of one page about the taps of a camera.
class TapReport
{
    Q_DECLARE_TR_FUNCTIONS(TapReport)

public:
    /// @param bars The diagram of the deviations, on white paper.
    /// @param picture What the canvas shows, with the borders; may be null.
    static HtmlReport make(
        const CameraRecord &camera, const TapResult &result, const QImage &bars, const QImage &picture);

private:
    static void addMeasurement(HtmlReport &report, const TapMeasurement &measurement);
    static void addBalance(HtmlReport &report, const TapBalance &balance);
};
