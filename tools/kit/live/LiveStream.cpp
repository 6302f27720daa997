#include "tools/kit/live/LiveStream.h"

#include "tools/kit/live/StreamSession.h"

#include <QPointer>

#include <algorithm>
#include <optional>

using CvxCPP::CvxResult;
using CvxCPP::Device;

namespace {

/// Returns true if the pointers refer to the same device, also if it no longer exists.
bool isSame(const std::weak_ptr<Device> &first, const std::shared_ptr<Device> &second)
{
    return !first.owner_before(second) && !second.owner_before(first);
}

} // namespace

LiveStream::LiveStream(CameraConnection &connection, QObject *parent)
    : QObject(parent), m_connection(connection)
{
    connect(&m_connection, &CameraConnection::stateChanged, this, &LiveStream::followConnection);
}

LiveStream::~LiveStream()
{
    if (m_session)
        m_session->abandon();
}

LiveStream::State LiveStream::state() const
{
    return m_state;
}

QString LiveStream::problem() const
{
    return m_problem;
}

void LiveStream::start(unsigned buffers)
{
    if (m_state != State::Stopped && m_state != State::Failed)
        return;
    m_buffers = buffers;
    m_startsWhenBack = false;
    createSession();
    ++m_pendingCalls;
    setState(State::Starting);
    m_connection.run(
        [session = m_session, buffers](Device &device) { return session->start(device, buffers); }, this,
        [this, session = m_session](const CvxResult &result) { finishCall(session.get(), result); });
}

void LiveStream::stop()
{
    m_startsWhenBack = false;
    if (m_state != State::Starting && m_state != State::Running)
        return;
    ++m_pendingCalls;
    setState(State::Stopping);
    m_connection.run(
        [session = m_session](Device &) {
            session->stop();
            return CvxResult{};
        },
        this, [this, session = m_session](const CvxResult &) { finishCall(session.get(), {}); });
}

void LiveStream::pauseFor(CameraConnection::Call call, QObject *context, CameraConnection::Done done)
{
    if (m_state == State::Stopped || m_state == State::Failed) {
        m_connection.run(std::move(call), context, std::move(done));
        return;
    }
    // One call of the connection, so that no other call comes in between.
    struct Outcome
    {
        std::optional<CvxResult> call;
        CvxResult restart;
    };
    const auto outcome = std::make_shared<Outcome>();
    const auto pause = [session = m_session, buffers = m_buffers, call, outcome](Device &device) {
        const bool wasRunning = session->isRunning();
        session->stop();
        outcome->call = call(device);
        if (wasRunning)
            outcome->restart = session->start(device, buffers);
        return CvxResult{};
    };
    const auto finish = [this, session = m_session, outcome, done, guard = QPointer<QObject>(context)](
                            const CvxResult &result) {
        finishCall(session.get(), outcome->restart);
        if (done && guard)
            done(outcome->call.value_or(result));
    };
    ++m_pendingCalls;
    if (m_state == State::Running)
        setState(State::Stopping);
    m_connection.run(pause, this, finish);
}

CvxCPP::StreamStatistics LiveStream::statistics() const
{
    return m_session ? m_session->statistics() : m_lastStatistics;
}

CvxCPP::StreamStatistics LiveStream::totals() const
{
    return m_session ? m_session->totals() : m_lastTotals;
}

void LiveStream::addSink(ImageSink *sink)
{
    m_sinks.push_back(sink);
    if (m_session)
        m_session->sinks().add(sink);
}

void LiveStream::removeSink(ImageSink *sink)
{
    m_sinks.erase(std::remove(m_sinks.begin(), m_sinks.end(), sink), m_sinks.end());
    if (m_session)
        m_session->sinks().remove(sink);
}

/// Creates a session unless there is one for the present device.
void LiveStream::createSession()
{
    if (m_session && isSame(m_device, m_connection.device()))
        return;
    releaseSession();
    m_device = m_connection.device();
    m_session = std::make_shared<StreamSession>();
    for (ImageSink *const sink : m_sinks)
        m_session->sinks().add(sink);
    connect(m_session.get(), &StreamSession::ended, this, &LiveStream::followSession);
}

/// Makes sure that no sink receives another image of the session, without waiting for its camera.
void LiveStream::releaseSession()
{
    const auto hasEnded = [](const std::shared_ptr<StreamSession> &session) {
        return session.use_count() == 1 && session->hasThreadEnded();
    };
    m_releasedSessions.erase(std::remove_if(m_releasedSessions.begin(), m_releasedSessions.end(), hasEnded),
        m_releasedSessions.end());
    if (!m_session)
        return;
    m_lastStatistics = m_session->statistics();
    m_lastTotals = m_session->totals();
    m_session->abandon();
    m_releasedSessions.push_back(std::move(m_session));
    m_session.reset();
    m_pendingCalls = 0;
}

void LiveStream::followConnection()
{
    if (m_session && !isSame(m_device, m_connection.device())) {
        releaseSession();
        m_startsWhenBack = false;
        setState(State::Stopped);
    }
    if (m_connection.state() == CameraConnection::State::Opening)
        m_lastTotals = {}; // They are those of another camera.
    if (m_startsWhenBack && m_connection.state() == CameraConnection::State::Open)
        start(m_buffers);
}

void LiveStream::finishCall(const StreamSession *session, const CvxResult &result)
{
    if (session != m_session.get())
        return;
    --m_pendingCalls;
    m_startResult = result;
    followSession();
}

/// Derives the state from that of the session, once all calls are done.
void LiveStream::followSession()
{
    if (!m_session || m_pendingCalls > 0)
        return;
    if (m_session->isRunning()) {
        setState(State::Running);
        return;
    }
    const CvxResult problem = m_startResult ? m_session->endReason() : m_startResult;
    if (problem) {
        setState(State::Stopped);
        return;
    }
    m_startsWhenBack = problem.code == CvxCPP::CvxErrorDeviceLost;
    m_problem = QString::fromStdString(problem.text);
    if (m_problem.isEmpty())
        m_problem = tr("The stream of the camera has ended.");
    setState(State::Failed);
}

void LiveStream::setState(State state)
{
    if (state != State::Failed)
        m_problem.clear();
    if (state == m_state)
        return;
    m_state = state;
    emit stateChanged();
}
