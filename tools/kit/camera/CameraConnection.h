#pragma once

#include "CvxCPP/Device.h"
#include "tools/kit/camera/CameraEntry.h"

#include <QDateTime>
#include <QObject>
#include <QStringList>

#include <functional>
#include <map>
#include <memory>

class DeviceSession;

/// The one camera that a tool works with. All functions are called on the GUI thread and return immediately;
/// the calls of the SDK are made on a thread of the connection, one after the other. The SDK opens a lost
/// camera again by itself and restores its features; the connection reports how that goes on.
class CameraConnection : public QObject
{
    Q_OBJECT

public:
    enum class State
    {
        Closed,
        Opening,
        Open,
        Lost, ///< The device exists, but the camera is gone. The SDK tries to open it again.
        InUse, ///< Opening failed, because another program uses the camera.
        Failed ///< Opening failed for another reason.
    };
    Q_ENUM(State)

    using Call = std::function<CvxCPP::CvxResult(CvxCPP::Device &)>;
    using Done = std::function<void(const CvxCPP::CvxResult &)>;

    explicit CameraConnection(QObject *parent = nullptr);

    /// Closes the camera. Blocks for at most 3 s, or 6 s during a measurement, and until a running call has
    /// ended: a camera that is being opened takes up to 20 s, unless the CameraFinder is destroyed first.
    ~CameraConnection() override;

    /// Closes the present camera and opens another one, without waiting for the present one. Opening a camera
    /// that is being closed succeeds, because the SDK waits some seconds for a camera in use.
    void open(const CameraEntry &camera, CvxCPP::CvxAccess access);

    /// Closes the camera, also while it is being opened. The state is Closed at once. Calls that wait are not
    /// made; their result is CvxErrorClosed.
    void close();

    State state() const { return m_state; }
    CvxCPP::CvxAccess access() const { return m_access; } ///< What open() was called with.
    /// Returns what open() was called with; without ID before the first call.
    const CameraEntry &camera() const { return m_camera; }

    /// Returns why the state is Lost, InUse or Failed, for people. After a loss, the text of the state Open
    /// says that the camera is open again, and which settings it has refused. Otherwise, the text is empty.
    QString reason() const { return m_reason; }
    QDateTime since() const { return m_since; } ///< When the state began.

    /// Returns true if features can be written: open, and not for watching.
    bool isControlled() const;

    /// Null unless the state is Open or Lost.
    std::shared_ptr<CvxCPP::Device> device() const { return m_device; }

    /// Makes a call of the SDK on the connection's thread, after the earlier ones, and reports the result on
    /// the GUI thread, never before run() has returned. `done` is not called if `context` was destroyed or
    /// another camera was opened meanwhile. Without a device, the result is CvxErrorClosed. `done` may be
    /// empty; then `context` may be null.
    void run(Call call, QObject *context, Done done);

signals:
    void stateChanged();

    /// The values, limits or access of these nodes may have changed.
    void nodesChanged(const QStringList &names);

private:
    using Sessions = std::map<quint64, std::unique_ptr<DeviceSession>>;

    std::unique_ptr<DeviceSession> startSession(quint64 number);
    void release();
    void post(quint64 number, std::function<void()> call);
    void takeOpened(const CvxCPP::CvxResult &result, const std::shared_ptr<CvxCPP::Device> &device);
    void takeDeviceState(CvxCPP::DeviceState state, const QString &reason);
    void setState(State state, const QString &reason);

    State m_state = State::Closed;
    CvxCPP::CvxAccess m_access = CvxCPP::CvxAccessWatch;
    CameraEntry m_camera;
    QString m_reason;
    QDateTime m_since;
    std::shared_ptr<CvxCPP::Device> m_device;
    quint64 m_openCount = 0; // Identifies the session of the present camera.
    Sessions m_sessions; // The present one and those that are still being closed.
};
