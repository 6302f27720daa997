#pragma once

#include "CvxCPP/Image.h"
#include "sdk/imagefile/ImageFileWriter.h"
#include "tools/imageviewer/files/CameraRecordReader.h"

#include <QImage>
#include <QObject>
#include <QThreadPool>

#include <memory>

/// Where and how a snapshot is saved.
struct SnapshotOptions
{
    QString folder;
    QString pattern; ///< See FileNamePattern.
    ImageFileFormat format = ImageFileFormat::Png16;
};

/// Saves single images with their sidecars. The file contains the raw values of the image, not what the
/// screen shows. Existing files are never replaced. All functions are called on the GUI thread and return
/// immediately.
class SnapshotSaver : public QObject
{
    Q_OBJECT

public:
    explicit SnapshotSaver(CameraRecordReader &records, QObject *parent = nullptr);

    /// Blocks until the images that are being saved are on the disk.
    ~SnapshotSaver() override;

    void save(const std::shared_ptr<const CvxCPP::Image> &image, const SnapshotOptions &options);

    /// Returns the number of images that are being saved.
    int pending() const { return m_pending; }

signals:
    /// @param thumbnail A small picture for the eye.
    void saved(const QString &path, const QImage &thumbnail);

    /// @param text Why the image was not saved, for people.
    void failed(const QString &text);

private:
    struct Job;
    struct Outcome;

    void write(Job job, const CameraRecord &record);
    void report(const Outcome &outcome);

    CameraRecordReader &m_records;
    int m_pending = 0;
    ImageFileWriter m_writer; // Used on the pool's one thread.
    QThreadPool m_pool; // Ends before the other members.
};
