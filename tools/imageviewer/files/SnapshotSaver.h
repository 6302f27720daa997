#pragma once

#include "CvxCPP/Image.h"
#include "sdk/imagefile/ImageFileWriter.h"
#include "tools/imageviewer/files/CameraRecordReader.h"
#include "tools/imageviewer/files/ImageKeeper.h"

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

/// Saves single images with their sidecars. The file contains the values of the image, with the correction if
/// there is one, not what the screen shows. Existing files are never replaced. All functions are called on
/// the GUI thread and return immediately.
class SnapshotSaver : public QObject
{
    Q_OBJECT

public:
    static constexpr int thumbnailSize = 96; ///< Longest side in pixels.

    explicit SnapshotSaver(CameraRecordReader &records, QObject *parent = nullptr);

    /// Blocks until the images that are being written are on the disk.
    ~SnapshotSaver() override;

    /// Corrects the PNG and TIFF files of the images that are saved from now on.
    void setCorrection(const CorrectionSource &correction) { m_correction = correction; }

    void save(const std::shared_ptr<const CvxCPP::Image> &image, const SnapshotOptions &options);

    /// Returns the number of images that are being saved.
    int pending() const { return m_pending; }

signals:
    /// @param thumbnail A small picture for the eye.
    void saved(const QString &path, const QImage &thumbnail);

    /// @param text Why the image was not saved, for people.
    void failed(const QString &text);

private:
    struct Job
    {
        std::shared_ptr<const CvxCPP::Image> image;
        SnapshotOptions options;
        CorrectionSource correction;
    };

    struct Outcome
    {
        QString path;
        QImage thumbnail;
        QString problem;
    };

    void write(const Job &job, const CameraRecord &record);
    Outcome writeFile(const Job &job, const CameraRecord &record);
    void report(const Outcome &outcome);

    CameraRecordReader &m_records;
    ImageKeeper m_keeper;
    CorrectionSource m_correction;
    int m_pending = 0;
    // Only the pool's one thread uses these four members.
    QString m_lastPattern; // The pattern of the last file, with folder and extension.
    unsigned m_lastNumber = 0;
    ImageFileWriter m_writer;
    ImageConverter m_converter;
    QThreadPool m_pool; // Ends before the other members.
};
