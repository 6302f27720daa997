#pragma once

#include "sdk/imagefile/CameraRecord.h"
#include "tools/kit/assistant/HtmlReport.h"
#include "tools/kit/measure/focus/FocusResult.h"

#include <QCoreApplication>
#include <QImage>
#include <QStringList>

/// The report of a focus measurement.
class FocusReport
{
    Q_DECLARE_TR_FUNCTIONS(FocusReport)

public:
    struct Pictures
    {
        QImage grid; ///< The picture with the regions.
        QImage trend;
    };

    /// @param sentences What the result says, in the language of the program.
    static HtmlReport report(const FocusResult &result, const CameraRecord &camera,
        const QStringList &sentences, const Pictures &pictures);
};
