#pragma once

#include "CvxCPP/Device.h"
#include "tools/kit/camera/CameraEntry.h"

#include <QDateTime>
#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

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

    /// Closes the camera. Blocks for at most 3 s, and until a running call has ended.
    ~CameraConnection() override;

    /// Closes the present camera and opens another one.
    void open(const CameraEntry &camera, CvxCPP::CvxAccess access);
    void close();

    State state() const;
    CvxCPP::CvxAccess access() const; ///< What open() was called with.
    const CameraEntry &camera() const; ///< What open() was called with; without ID before the first call.
    QString reason() const; ///< Why the state is Lost, InUse or Failed, for people; otherwise empty.
    QDateTime since() const; ///< When the state began.

    /// Returns true if features can be written and streams started: open, and not for watching.
    bool isControlled() const;

    /// Null unless the state is Open or Lost.
    std::shared_ptr<CvxCPP::Device> device() const;

    /// Makes a call of the SDK on the connection's thread, after the earlier ones, and reports the result on
    /// the GUI thread. `done` is not called if `context` was destroyed or another camera was opened
    /// meanwhile. Without a device, the result is CvxErrorClosed. `done` may be empty.
    void run(Call call, QObject *context, Done done);

signals:
    void stateChanged();

    /// The values, limits or access of these nodes may have changed.
    void nodesChanged(const QStringList &names);
};
