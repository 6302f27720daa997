#pragma once

#include "sdk/imagefile/CameraRecord.h"
#include "tools/kit/camera/CameraConnection.h"

#include <QObject>

#include <functional>
#include <list>

/// Reads what files say about the connected camera, and remembers it for the time when the camera is lost.
class CameraRecordReader : public QObject
{
    Q_OBJECT

public:
    using Done = std::function<void(const CameraRecord &record)>;

    explicit CameraRecordReader(CameraConnection &connection, QObject *parent = nullptr);

    /// Reads the record in the background and calls `done` on the GUI thread. If the camera is lost, `done`
    /// receives the record that was read last, or one without settings.
    void read(Done done);

    /// Reads the record so that it is known if the camera is lost later.
    void refresh();

    const CameraConnection &connection() const { return m_connection; }

private:
    struct Request
    {
        QString camera; // ID.
        Done done;
    };
    using Requests = std::list<Request>;

    void answer(Requests::iterator request, const CameraRecord &record);
    void answerForOtherCameras();
    CameraRecord knownRecord() const;

    CameraConnection &m_connection;
    QString m_recordedCamera; // ID.
    CameraRecord m_record;
    Requests m_requests;
};
