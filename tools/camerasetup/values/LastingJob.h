#pragma once

#include "tools/camerasetup/values/CameraJobs.h"

#include <QObject>
#include <QString>

#include <atomic>
#include <memory>

/// One job of the connected camera at a time, which always ends: also if it was forgotten with the other jobs
/// or the camera was closed. It can be cancelled without the jobs of others. If the result is CvxErrorClosed,
/// the work may still be at its end, so what it writes must not be read.
class LastingJob : public QObject
{
    Q_OBJECT

public:
    /// The jobs must outlive this object.
    explicit LastingJob(CameraJobs &jobs);
    ~LastingJob() override; ///< Cancels the job without waiting for it.

    void start(const QString &title, CameraJobs::StreamUse stream, CameraJobs::Work work,
        const CameraJobs::Done &done);

    void cancel(); ///< Lets the job stop soon; it still reports its result.
    void abandon(); ///< Also cancels, but the job reports nothing.
    bool isRunning() const { return static_cast<bool>(m_done); } ///< True also while a job waits.

private:
    void checkJobs();
    void finishForgotten();
    void takeResult(const std::shared_ptr<std::atomic<bool>> &job, const CvxCPP::CvxResult &result);
    void finish(const CvxCPP::CvxResult &result);

    CameraJobs &m_jobs;
    CameraJobs::Done m_done; // Empty unless a job is waiting or running.
    std::shared_ptr<std::atomic<bool>> m_isCancelled; // Shared with the thread of the connection.
};
