#include "tools/camerasetup/compare/SettingsSource.h"

#include <QCoreApplication>

QString readProblem(const CvxCPP::CvxResult &result, bool isCancelled)
{
    if (!result)
        return QString::fromStdString(result.text);
    return isCancelled ? QCoreApplication::translate("SettingsSource", "The reading was cancelled.")
                       : QString();
}
