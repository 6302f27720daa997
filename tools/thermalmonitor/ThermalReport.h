#pragma once

#include "sdk/imagefile/CameraRecord.h"
#include "tools/kit/measure/thermal/ThermalMonitor.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QImage>

/// The report of a monitoring for people.
class ThermalReport
{
    Q_DECLARE_TR_FUNCTIONS(ThermalReport)

public:
    struct Pictures
    {
        QImage temperatures;
        QImage dark; ///< Null without dark levels.
    };

    static QByteArray html(
        const CameraRecord &camera, const ThermalMonitor &monitor, const Pictures &pictures);
};
