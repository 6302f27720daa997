#pragma once

#include "tests/imageviewer/numbers/StreamingDevice.h"
#include "tools/imageviewer/files/RecordingControl.h"
#include "tools/imageviewer/files/SnapshotSaver.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/resource.h>

/// A connected camera with a stream, and a folder of its own.
struct SavingCamera
{
    SavingCamera()
    {
        device->add("ExposureTime", 1500.0);
        connection.open(OpenableCamera::entry(camera), CvxCPP::CvxAccessControl);
    }

    bool waitUntilOpen()
    {
        return QTest::qWaitFor([this] { return connection.state() == CameraConnection::State::Open; }, 10000);
    }

    bool startStream()
    {
        stream.start(8);
        return QTest::qWaitFor([this] { return stream.state() == LiveStream::State::Running; }, 10000);
    }

    QString path(const QString &name) const { return folder.filePath(name); }

    QByteArray content(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QJsonObject json(const QString &name) const { return QJsonDocument::fromJson(content(name)).object(); }

    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files, QDir::Name); }

    QTemporaryDir folder;
    std::shared_ptr<StreamingDevice> device = std::make_shared<StreamingDevice>();
    std::shared_ptr<OpenableCamera> camera = std::make_shared<OpenableCamera>("Net-1", device);
    CameraConnection connection;
    LiveStream stream{connection};
    CameraRecordReader records{connection};
};

/// Limits the size of every file, as a full disk does.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &m_before); }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

private:
    rlimit m_before{};
};
