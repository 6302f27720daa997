#include "tools/camerasetup/values/LastingJob.h"

#include <utility>

using namespace CvxCPP;

LastingJob::LastingJob(CameraJobs &jobs) : m_jobs(jobs)
{
    connect(&jobs, &CameraJobs::changed, this, &LastingJob::checkJobs);
}

LastingJob::~LastingJob()
{
    cancel();
}

void LastingJob::start(
    const QString &title, CameraJobs::StreamUse stream, CameraJobs::Work work, const CameraJobs::Done &done)
{
    m_done = done;
    m_isCancelled = std::make_shared<std::atomic<bool>>(false);
    const auto cancellable = [work = std::move(work), isCancelled = m_isCancelled](
                                 Device &device, const FeatureProgress &progress) {
        return work(device, [&](std::size_t finished, std::size_t total) {
            return progress(finished, total) && !*isCancelled;
        });
    };
    m_jobs.start(title, stream, cancellable, this,
        [this, job = m_isCancelled](const CvxResult &result) { takeResult(job, result); });
}

void LastingJob::cancel()
{
    if (m_isCancelled)
        *m_isCancelled = true;
}

void LastingJob::abandon()
{
    m_done = nullptr;
    cancel();
}

/// The jobs report a result only after they say that they have ended, so this is too early to judge.
void LastingJob::checkJobs()
{
    if (m_done && !m_jobs.isBusy())
        QMetaObject::invokeMethod(this, &LastingJob::finishForgotten, Qt::QueuedConnection);
}

void LastingJob::finishForgotten()
{
    if (!m_jobs.isBusy())
        finish({CvxErrorClosed,
            tr("The work was cancelled before it began, or the camera was closed.").toStdString()});
}

/// @param job Tells a new job from one that was abandoned.
void LastingJob::takeResult(const std::shared_ptr<std::atomic<bool>> &job, const CvxResult &result)
{
    if (job == m_isCancelled)
        finish(result);
}

void LastingJob::finish(const CvxResult &result)
{
    if (const auto done = std::exchange(m_done, nullptr))
        done(result);
}
