#include "tools/camerasetup/compare/CompareJob.h"

#include <utility>

using namespace CvxCPP;

CompareJob::CompareJob(CameraJobs &jobs) : m_jobs(jobs)
{
    connect(&jobs, &CameraJobs::changed, this, &CompareJob::checkJobs);
}

CompareJob::~CompareJob()
{
    cancel();
}

void CompareJob::start(
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
    m_jobs.start(title, stream, cancellable, this, [this](const CvxResult &result) { finish(result); });
}

void CompareJob::cancel()
{
    if (m_isCancelled)
        *m_isCancelled = true;
}

/// The jobs report a result only after they say that they have ended, so this is too early to judge.
void CompareJob::checkJobs()
{
    if (m_done && !m_jobs.isBusy())
        QMetaObject::invokeMethod(this, &CompareJob::finishForgotten, Qt::QueuedConnection);
}

void CompareJob::finishForgotten()
{
    if (!m_jobs.isBusy())
        finish({CvxErrorClosed, tr("The work was cancelled.").toStdString()});
}

void CompareJob::finish(const CvxResult &result)
{
    if (const auto done = std::exchange(m_done, nullptr))
        done(result);
}
