#include "tools/kit/camera/CameraConnection.h"

#include "tools/kit/camera/DeviceSession.h"

#include <QPointer>

#include <utility>

using namespace CvxCPP;

namespace {

QStringList toStringList(const std::vector<std::string> &texts)
{
    QStringList list;
    list.reserve(int(texts.size()));
    for (const std::string &text : texts)
        list.append(QString::fromStdString(text));
    return list;
}

} // namespace

CameraConnection::CameraConnection(QObject *parent) : QObject(parent), m_since(QDateTime::currentDateTime())
{ }

CameraConnection::~CameraConnection()
{
    for (const auto &session : m_sessions)
        session.second->close(); // All at the same time; the destructors wait.
}

void CameraConnection::open(const CameraEntry &camera, CvxAccess access)
{
    release();
    m_camera = camera;
    m_access = access;
    ++m_openCount;
    m_sessions[m_openCount] = startSession(m_openCount);
    setState(State::Opening, {});
}

void CameraConnection::close()
{
    release();
    setState(State::Closed, {});
}

/// Lets the present session close its camera in the background.
void CameraConnection::release()
{
    m_device.reset();
    const auto session = m_sessions.find(m_openCount);
    if (session != m_sessions.end())
        session->second->close();
}

/// Opens the present camera. All events arrive on the GUI thread.
std::unique_ptr<DeviceSession> CameraConnection::startSession(quint64 number)
{
    DeviceSession::Events events;
    events.opened = [this, number](const CvxResult &result, const std::shared_ptr<Device> &device) {
        post(number, [this, result, device] { takeOpened(result, device); });
    };
    events.stateChanged = [this, number](DeviceState state, const std::string &reason) {
        post(number, [this, state, reason] { takeDeviceState(state, QString::fromStdString(reason)); });
    };
    events.nodesChanged = [this, number](const std::vector<std::string> &names) {
        post(number, [this, list = toStringList(names)] { emit nodesChanged(list); });
    };
    events.ended = [this, number] {
        QMetaObject::invokeMethod(
            this, [this, number] { m_sessions.erase(number); }, Qt::QueuedConnection);
    };
    return std::make_unique<DeviceSession>(m_camera.camera, m_access, std::move(events));
}

/// Makes a call on the GUI thread if the session is still the present one. Any thread.
void CameraConnection::post(quint64 number, std::function<void()> call)
{
    const auto callIfPresent = [this, number, call = std::move(call)] {
        if (number == m_openCount && m_state != State::Closed)
            call();
    };
    QMetaObject::invokeMethod(this, callIfPresent, Qt::QueuedConnection);
}

void CameraConnection::takeOpened(const CvxResult &result, const std::shared_ptr<Device> &device)
{
    m_device = device;
    if (device)
        return setState(State::Open, {});
    release();
    setState(
        result.code == CvxErrorInUse ? State::InUse : State::Failed, QString::fromStdString(result.text));
}

void CameraConnection::takeDeviceState(DeviceState state, const QString &reason)
{
    switch (state) {
    case DeviceState::Open:
        return setState(State::Open, reason);
    case DeviceState::Lost:
    case DeviceState::Reopening:
        // The first reason tells what has happened, the later ones only that the camera is still gone.
        if (m_state != State::Lost || m_reason.isEmpty())
            setState(State::Lost, reason);
        return;
    case DeviceState::Closed: // Not by this object, so the camera system was shut down.
        return close();
    }
}

void CameraConnection::setState(State state, const QString &reason)
{
    if (state == m_state && reason == m_reason && state != State::Opening)
        return;
    if (state != m_state || state == State::Opening)
        m_since = QDateTime::currentDateTime();
    m_state = state;
    m_reason = reason;
    emit stateChanged();
}

bool CameraConnection::isControlled() const
{
    return m_state == State::Open && m_access != CvxAccessWatch;
}

void CameraConnection::run(Call call, QObject *context, Done done)
{
    const auto report = [this, number = m_openCount, isReported = bool(done), done = std::move(done),
                            owner = QPointer<QObject>(context)](const CvxResult &result) {
        const auto deliver = [this, number, isReported, done, owner, result] {
            if (isReported && owner && number == m_openCount)
                done(result);
        };
        QMetaObject::invokeMethod(this, deliver, Qt::QueuedConnection);
    };
    const auto session = m_sessions.find(m_openCount);
    if (!m_device || session == m_sessions.end())
        return report({CvxErrorClosed, tr("The camera is not open.").toStdString()});
    session->second->run(std::move(call), report);
}
