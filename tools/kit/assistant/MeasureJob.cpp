#include "tools/kit/assistant/MeasureJob.h"

#include "tools/kit/assistant/MeasureThread.h"
#include "tools/kit/assistant/SentenceText.h"

#include <utility>

namespace {

constexpr int progressInterval = 100; ///< Milliseconds.

} // namespace

MeasureJob::MeasureJob(CameraConnection &connection, LiveStream &stream, QObject *parent)
    : QObject(parent), m_connection(connection), m_stream(stream)
{
    m_progressTimer.setInterval(progressInterval);
    connect(&m_progressTimer, &QTimer::timeout, this, &MeasureJob::changed);
    connect(&connection, &CameraConnection::stateChanged, this, &MeasureJob::watchConnection);
    connect(&stream, &LiveStream::stateChanged, this, &MeasureJob::watchStream);
}

MeasureJob::~MeasureJob()
{
    if (m_thread)
        m_stream.removeSink(&m_thread->frames());
}

void MeasureJob::start(
    const QString &title, Changes changes, const Work &work, QObject *context, const Done &done)
{
    if (isRunning())
        return;
    if (!m_connection.isControlled()) {
        const QString problem = tr("The camera is not open for control, so nothing can be measured.");
        QMetaObject::invokeMethod(
            context, [done, problem] { done(problem); }, Qt::QueuedConnection);
        return;
    }
    m_title = title;
    m_problem.clear();
    m_context = context;
    m_done = done;
    MeasureThread::Task task;
    task.camera = m_connection.camera().camera;
    task.device = m_connection.device();
    task.keepsChanges = changes == Changes::Keep;
    task.work = work;
    task.ended = [this](const Sentence &sentence, const std::string &notPutBack) {
        QMetaObject::invokeMethod(
            this, [this, sentence, notPutBack] { finish(sentence, notPutBack); }, Qt::QueuedConnection);
    };
    m_thread = std::make_unique<MeasureThread>(std::move(task));
    m_stream.addSink(&m_thread->frames());
    m_stream.start(streamBuffers);
    m_progressTimer.start();
    emit changed();
}

bool MeasureJob::isRunning() const
{
    return bool(m_thread);
}

QString MeasureJob::title() const
{
    return isRunning() ? m_title : QString();
}

std::size_t MeasureJob::done() const
{
    return m_thread ? m_thread->done() : 0;
}

std::size_t MeasureJob::total() const
{
    return m_thread ? m_thread->total() : 0;
}

void MeasureJob::cancel()
{
    if (m_thread)
        m_thread->cancel();
}

void MeasureJob::watchConnection()
{
    if (!isRunning() || m_connection.isControlled())
        return;
    abort(m_connection.state() == CameraConnection::State::Lost
            ? tr("The camera was lost during the measurement. Measure again when it is back.")
            : tr("The camera was closed during the measurement."));
}

void MeasureJob::watchStream()
{
    if (!isRunning())
        return;
    if (m_stream.state() == LiveStream::State::Failed)
        abort(tr("The camera sends no pictures. %1").arg(m_stream.problem()));
    else if (m_stream.state() == LiveStream::State::Stopped && m_connection.isControlled())
        m_stream.start(streamBuffers); // It was being stopped when the measurement began.
}

void MeasureJob::abort(const QString &problem)
{
    if (m_problem.isEmpty())
        m_problem = problem;
    m_thread->cancel();
}

void MeasureJob::finish(const Sentence &sentence, const std::string &notPutBack)
{
    m_progressTimer.stop();
    m_stream.removeSink(&m_thread->frames());
    m_thread.reset();
    const Done done = std::exchange(m_done, {});
    QStringList problems{m_problem.isEmpty() ? translatedSentence(sentence) : m_problem};
    if (!notPutBack.empty())
        problems.append(tr("Some settings were not put back. %1").arg(QString::fromStdString(notPutBack)));
    emit changed();
    if (m_context)
        done(problems.join(QLatin1Char(' ')).trimmed());
}
