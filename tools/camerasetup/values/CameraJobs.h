#pragma once

#include "sdk/features/DeviceCalls.h"
#include "tools/kit/camera/CameraConnection.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <deque>
#include <functional>
#include <memory>

class StreamPauser;

/// Long work with the connected camera, for example loading a file: one job after the other, with progress
/// and cancel. All functions are called on the GUI thread and return immediately. While a job is running,
/// other calls of the connection wait, so a job that takes seconds is best split.
class CameraJobs : public QObject
{
    Q_OBJECT

public:
    /// What happens to the running stream of this program.
    enum class StreamUse
    {
        Keep,
        Pause ///< The stream is stopped for the job and started again afterwards.
    };

    /// Called on the thread of the connection. Stops early if the progress function returns false.
    using Work = std::function<CvxCPP::CvxResult(CvxCPP::Device &, const FeatureProgress &)>;
    using Done = CameraConnection::Done;

    explicit CameraJobs(CameraConnection &connection, QObject *parent = nullptr);
    ~CameraJobs() override; ///< Cancels the running job without waiting for it.

    /// Without a pauser, the program has no stream. The pauser must outlive this object.
    void setStreamPauser(StreamPauser *pauser) { m_pauser = pauser; }

    /// Adds a job. `done` is called on the GUI thread, unless `context` was destroyed or the camera was
    /// closed or replaced by another one meanwhile. If the camera is lost, the result says so.
    /// @param title What is being done, for people, for example "Reading the settings".
    void start(const QString &title, StreamUse stream, Work work, QObject *context, Done done);

    bool isBusy() const { return m_running != nullptr; }
    QString title() const; ///< Empty if no job is running.
    std::size_t done() const; ///< Features that the running job has finished.
    std::size_t total() const; ///< All features of the running job; 0 if it does not say.

    /// Lets the running job stop at the next feature, and forgets the waiting jobs.
    void cancel();

signals:
    /// A job has started or ended; also ten times per second while a job is running.
    void changed();

private:
    struct Job;

    void runNext();
    void finish(const std::shared_ptr<Job> &job, const CvxCPP::CvxResult &result);
    void followConnection();

    CameraConnection &m_connection;
    StreamPauser *m_pauser = nullptr;
    std::shared_ptr<Job> m_running;
    std::deque<std::shared_ptr<Job>> m_waiting;
    QTimer m_progressTimer;
};
