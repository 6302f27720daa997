#include "tools/camerasetup/compare/OtherCameraSource.h"

#include <utility>

using namespace CvxCPP;
using ConnectionState = CameraConnection::State;

namespace {

constexpr int maxMilliseconds = 5 * 60 * 1000; // A camera with 5,000 features at 20 ms each needs 100 s.

} // namespace

OtherCameraSource::OtherCameraSource(const CameraEntry &camera, CameraConnection &connection)
    : m_camera(camera), m_connection(connection)
{
    m_limit.setSingleShot(true);
    m_limit.setInterval(maxMilliseconds);
    connect(&m_limit, &QTimer::timeout, this, &OtherCameraSource::giveUp);
    connect(&connection, &CameraConnection::stateChanged, this, &OtherCameraSource::followConnection);
}

OtherCameraSource::~OtherCameraSource()
{
    cancel(); // The thread of the connection may still be at work.
}

QString OtherCameraSource::title() const
{
    return tr("Camera %1").arg(m_camera.title());
}

void OtherCameraSource::read(const std::vector<FeatureSetting> &others, const ReadDone &done)
{
    const auto reading = std::make_shared<SourceReading>();
    const auto task = std::make_shared<Task>();
    task->isRead = true;
    task->work = [reading, others](Device &device, const FeatureProgress &progress) {
        return readSnapshot(device, others, reading->snapshot, progress);
    };
    task->done = [this, reading, done](const QString &problem) {
        reading->snapshot.title = title();
        reading->problem = problem.isEmpty() ? readProblem({}, reading->snapshot.isCancelled) : problem;
        if (m_connection.access() == CvxAccessWatch)
            addNote(reading->snapshot.notes, "",
                tr("Another program uses this camera, so it was only watched.").toStdString());
        done(*reading);
    };
    start(task);
}

QString OtherCameraSource::writeQuestion(int count) const
{
    return tr("Write %n setting(s) to the camera %1? This cannot be undone here.", nullptr, count)
        .arg(m_camera.title());
}

void OtherCameraSource::write(const std::vector<FeatureSetting> &settings, const WriteDone &done)
{
    const auto writing = std::make_shared<SourceWriting>();
    const auto task = std::make_shared<Task>();
    task->work = [writing, settings](Device &device, const FeatureProgress &progress) {
        FeatureFile file;
        file.settings = settings;
        return loadFeatures(device, file, writing->report, progress);
    };
    task->done = [writing, done](const QString &problem) {
        writing->problem = problem;
        done(*writing);
    };
    start(task);
}

void OtherCameraSource::cancel()
{
    if (!m_task)
        return;
    m_task->isCancelled = true;
    if (!m_isWorking)
        finish(tr("Opening the camera was cancelled."));
}

/// Opens the camera for control, because reading writes selectors.
void OtherCameraSource::start(const std::shared_ptr<Task> &task)
{
    m_task = task;
    m_isWorking = false;
    if (!m_camera.camera) {
        finish(tr("The camera is not connected any more."));
        return;
    }
    m_limit.start();
    m_connection.open(m_camera, CvxAccessControl);
}

void OtherCameraSource::followConnection()
{
    if (!m_task || m_isWorking)
        return;
    if (m_connection.state() == ConnectionState::Open)
        runTask();
    else if (m_connection.state() == ConnectionState::InUse && m_task->isRead
        && m_connection.access() != CvxAccessWatch)
        m_connection.open(m_camera, CvxAccessWatch);
    else if (m_connection.state() == ConnectionState::InUse || m_connection.state() == ConnectionState::Failed
        || m_connection.state() == ConnectionState::Closed)
        finish(m_connection.reason());
}

void OtherCameraSource::runTask()
{
    m_isWorking = true;
    const auto task = m_task;
    const auto call = [task](Device &device) {
        return task->work(device, [task](std::size_t, std::size_t) { return !task->isCancelled; });
    };
    m_connection.run(call, this, [this, task](const CvxResult &result) { takeResult(task, result); });
}

void OtherCameraSource::takeResult(const std::shared_ptr<Task> &task, const CvxResult &result)
{
    if (task != m_task)
        return; // It was finished already.
    if (!result)
        finish(QString::fromStdString(result.text));
    else
        finish(task->isLate && task->isRead ? lateText() : QString()); // What was written is in the report.
}

/// Cancels the work, which ends at the next feature. Until then, its thread uses what it reads or writes.
void OtherCameraSource::giveUp()
{
    m_task->isLate = true;
    m_task->isCancelled = true;
    if (!m_isWorking)
        finish(lateText());
}

QString OtherCameraSource::lateText()
{
    return tr("The camera did not answer in time.");
}

/// Ends the task once.
void OtherCameraSource::finish(const QString &problem)
{
    const auto task = std::exchange(m_task, nullptr);
    if (!task)
        return;
    m_limit.stop();
    m_connection.close(); // First, because the next source may open its camera at once.
    task->done(problem);
}
