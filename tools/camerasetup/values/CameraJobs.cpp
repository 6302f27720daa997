#include "tools/camerasetup/values/CameraJobs.h"

#include "tools/kit/editors/StreamPauser.h"

#include <QPointer>

#include <atomic>
#include <utility>

using CvxCPP::CvxResult;

/// Shared with the thread of the connection, which only uses `work` and the atomic members.
struct CameraJobs::Job
{
    QString title;
    StreamUse stream;
    Work work;
    QPointer<QObject> context;
    Done done;
    std::atomic<std::size_t> finished{0};
    std::atomic<std::size_t> total{0};
    std::atomic<bool> isCancelled{false};
};

CameraJobs::CameraJobs(CameraConnection &connection, QObject *parent)
    : QObject(parent), m_connection(connection)
{
    m_progressTimer.setInterval(100);
    connect(&m_progressTimer, &QTimer::timeout, this, &CameraJobs::changed);
    connect(&connection, &CameraConnection::stateChanged, this, &CameraJobs::followConnection);
}

CameraJobs::~CameraJobs()
{
    cancel(); // The thread of the connection may still be at work.
}

void CameraJobs::start(const QString &title, StreamUse stream, Work work, QObject *context, Done done)
{
    const auto job = std::make_shared<Job>();
    job->title = title;
    job->stream = stream;
    job->work = std::move(work);
    job->context = context;
    job->done = std::move(done);
    m_waiting.push_back(job);
    if (!m_running)
        runNext();
}

void CameraJobs::runNext()
{
    m_running.reset();
    m_progressTimer.stop();
    if (!m_waiting.empty()) {
        m_progressTimer.start();
        m_running = m_waiting.front();
        m_waiting.pop_front();
        const auto job = m_running;
        const auto call = [job](CvxCPP::Device &device) {
            return job->work(device, [job](std::size_t done, std::size_t total) {
                job->finished = done;
                job->total = total;
                return !job->isCancelled;
            });
        };
        const auto finished = [this, job](const CvxResult &result) { finish(job, result); };
        if (job->stream == StreamUse::Pause && m_pauser)
            m_pauser->pauseFor(call, this, finished);
        else
            m_connection.run(call, this, finished);
    }
    emit changed();
}

void CameraJobs::finish(const std::shared_ptr<Job> &job, const CvxResult &result)
{
    if (job != m_running)
        return; // It belongs to a camera that was closed.
    runNext();
    if (job->context && job->done)
        job->done(result);
}

void CameraJobs::cancel()
{
    m_waiting.clear();
    if (m_running)
        m_running->isCancelled = true;
}

QString CameraJobs::title() const
{
    return m_running ? m_running->title : QString();
}

std::size_t CameraJobs::done() const
{
    return m_running ? m_running->finished.load() : 0;
}

std::size_t CameraJobs::total() const
{
    return m_running ? m_running->total.load() : 0;
}

/// Forgets the jobs of a camera that is closed: the connection reports no results of them.
void CameraJobs::followConnection()
{
    const CameraConnection::State state = m_connection.state();
    if (state == CameraConnection::State::Open || state == CameraConnection::State::Lost || !m_running)
        return;
    cancel();
    runNext();
}
