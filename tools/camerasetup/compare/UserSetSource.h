#pragma once

#include "tools/camerasetup/compare/SettingsSource.h"
#include "tools/camerasetup/compare/UserSetWork.h"
#include "tools/camerasetup/values/LastingJob.h"

#include <QCoreApplication>

class ChangeHistory;

/// Settings that the connected camera keeps in itself. The camera has to load them to show them, so the
/// settings from before are written back afterwards; what could not be written back is in the notes and in
/// the history.
class UserSetSource : public SettingsSource
{
    Q_DECLARE_TR_FUNCTIONS(UserSetSource)

public:
    /// The objects must outlive the source.
    UserSetSource(
        const QString &userSet, CameraConnection &connection, CameraJobs &jobs, ChangeHistory &history)
        : m_userSet(userSet), m_connection(connection), m_history(history), m_job(jobs)
    { }

    QString title() const override;
    QString readQuestion() const override;
    void read(const std::vector<FeatureSetting> &others, const ReadDone &done) override;
    QString readOnlyReason() const override;
    QString writeQuestion(int count) const override;
    void write(const std::vector<FeatureSetting> &settings, const WriteDone &done) override;
    void cancel() override { m_job.cancel(); }

private:
    SettingsSnapshot takeSnapshot(const UserSetVisit &visit) const;
    QString completeProblem(const QString &problem, const UserSetVisit &visit) const;
    SourceWriting takeWriting(const UserSetVisit &visit, const CvxCPP::CvxResult &result) const;
    void noteRemaining(const UserSetVisit &visit); ///< Records what was not put back.

    const QString m_userSet;
    CameraConnection &m_connection;
    ChangeHistory &m_history;
    LastingJob m_job;
};
