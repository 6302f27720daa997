#pragma once

#include "sdk/imagefile/CameraRecord.h"
#include "tools/kit/camera/CameraConnection.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <list>

/// Reads what files say about the connected camera, and remembers it for the time when the camera is lost.
class CameraRecordReader : public QObject
{
    Q_OBJECT

public:
    using Done = std::function<void(const CameraRecord &record)>;

    explicit CameraRecordReader(CameraConnection &connection, QObject *parent = nullptr);

    /// Reads the record in the background and calls `done` on the GUI thread, unless `context` was destroyed.
    /// If the camera is lost or closed, `done` receives the record that was read last, or one without
    /// settings.
    void read(QObject *context, Done done);

    CameraConnection &connection() const { return m_connection; }

private:
    struct Request
    {
        CameraEntry camera;
        QPointer<QObject> context;
        Done done;
    };
    using Requests = std::list<Request>;

    void take(Requests::iterator request, const CameraRecord &record);
    void answerWhenReplaced();
    void answer(const Request &request) const;
    CameraRecord knownRecord(const CameraEntry &camera) const;

    CameraConnection &m_connection;
    QString m_recordedCamera; // ID of the camera to which the record belongs.
    CameraRecord m_record;
    Requests m_requests; // Being read.
};
