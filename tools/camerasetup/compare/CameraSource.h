#pragma once

#include "tools/camerasetup/compare/SettingsSource.h"
#include "tools/camerasetup/values/CameraJobs.h"

#include <QCoreApplication>
#include <QObject>

class ChangeHistory;

/// The connected camera now. What is written can be undone.
class CameraSource : public SettingsSource
{
    Q_DECLARE_TR_FUNCTIONS(CameraSource)

public:
    /// The objects must outlive the source.
    CameraSource(CameraConnection &connection, CameraJobs &jobs, ChangeHistory &history)
        : m_connection(connection), m_jobs(jobs), m_history(history)
    { }

    QString title() const override;
    void read(const std::vector<FeatureSetting> &others, const ReadDone &done) override;
    QString readOnlyReason() const override;
    void write(const std::vector<FeatureSetting> &settings, const WriteDone &done) override;
    void cancel() override { m_jobs.cancel(); }

private:
    CameraConnection &m_connection;
    CameraJobs &m_jobs;
    ChangeHistory &m_history;
    QObject m_context; // Ends the callbacks of a source that is destroyed.
};
