#include "tools/camerasetup/compare/CameraSource.h"

#include "tools/camerasetup/values/ChangeHistory.h"
#include "tools/camerasetup/values/SettingsChange.h"

using namespace CvxCPP;

QString CameraSource::title() const
{
    return tr("This camera now");
}

void CameraSource::read(const std::vector<FeatureSetting> &others, const ReadDone &done)
{
    const auto reading = std::make_shared<SourceReading>();
    const auto work = [reading, others](Device &device, const FeatureProgress &progress) {
        return readSnapshot(device, others, reading->snapshot, progress);
    };
    m_job.start(tr("Reading the settings of this camera"), CameraJobs::StreamUse::Keep, work,
        [this, reading, done](const CvxResult &result) {
            reading->snapshot.title = tr("This camera now");
            reading->problem = readProblem(result, reading->snapshot.isCancelled);
            done(*reading);
        });
}

QString CameraSource::readOnlyReason() const
{
    return m_connection.isControlled() ? QString() : tr("This camera is not open for control.");
}

void CameraSource::write(const std::vector<FeatureSetting> &settings, const WriteDone &done)
{
    const auto writing = std::make_shared<SourceWriting>();
    const auto change = std::make_shared<SettingsChange>();
    const auto work = [writing, change, settings](Device &device, const FeatureProgress &progress) {
        FeatureFile file;
        file.settings = settings;
        const auto load
            = [&](const FeatureProgress &part) { return loadFeatures(device, file, writing->report, part); };
        return recordChange(device, settings, load, *change, progress);
    };
    m_job.start(tr("Copying to this camera"), CameraJobs::StreamUse::Pause, work,
        [this, writing, change, done](const CvxResult &result) {
            writing->problem = result ? QString() : QString::fromStdString(result.text);
            writing->report.isCancelled = writing->report.isCancelled || change->before.isCancelled;
            m_history.addEdits(tr("Copy of differences"), change->edits);
            done(*writing);
        });
}
