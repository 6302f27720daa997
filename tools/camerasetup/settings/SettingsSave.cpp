#include "tools/camerasetup/settings/SettingsSave.h"

#include "sdk/features/FeatureFileStorage.h"
#include "sdk/features/FeatureSaver.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

using namespace CvxCPP;

/// What the thread of the connection has done.
struct SettingsSave::Result
{
    SavedFeatures features;
    std::string problem; ///< Why the file was not written; empty if it was.
};

QString SettingsSave::suggestedName(const CameraEntry &camera, const QDate &date)
{
    QStringList parts;
    for (const QString &part : {camera.model, camera.serialNumber, date.toString(Qt::ISODate)}) {
        if (!part.isEmpty())
            parts.append(part);
    }
    static const QRegularExpression unusual(QStringLiteral("[^\\w.-]+"));
    return parts.join(QLatin1Char('_')).replace(unusual, QStringLiteral("-")) + QStringLiteral(".txt");
}

void SettingsSave::start(const QString &path, const CameraEntry &camera)
{
    const auto saved = std::make_shared<Result>();
    const std::string device = QStringLiteral("%1 (%2)").arg(camera.model, camera.serialNumber).toStdString();
    const auto work = [saved, device, file = QFile::encodeName(path).toStdString()](
                          Device &camera_, const FeatureProgress &progress) {
        const SavedFeatures &features = saved->features;
        CvxResult result = saveFeatures(camera_, saved->features, progress);
        if (result && !features.isCancelled && !features.settings.empty())
            saved->problem = writeFeatureFile(file, formatFeatureFile(features.settings, device));
        return result;
    };
    m_jobs.start(tr("Saving the settings"), CameraJobs::StreamUse::Keep, work, this,
        [this, path, saved](const CvxResult &result) { finish(path, *saved, result); });
}

void SettingsSave::finish(const QString &path, const Result &saved, const CvxResult &result)
{
    if (!result)
        emit failed(QString::fromStdString(result.text));
    else if (saved.features.isCancelled)
        emit failed(tr("Saving was cancelled. The file was not written."));
    else if (saved.features.settings.empty())
        emit failed(tr("The camera has no settings that belong in a file. The file was not written."));
    else if (!saved.problem.empty())
        emit failed(QString::fromStdString(saved.problem));
    else {
        emit this->saved(path, int(saved.features.settings.size()), saved.features.notes);
    }
}
