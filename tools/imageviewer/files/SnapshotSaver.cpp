#include "tools/imageviewer/files/SnapshotSaver.h"

#include "tools/imageviewer/files/ImageFileNames.h"
#include "tools/imageviewer/files/NewFile.h"
#include "tools/imageviewer/files/Thumbnail.h"

namespace {

constexpr unsigned maxHeldSnapshots = 2; // Buffers of the stream that waiting snapshots may occupy.

QString extensionOf(ImageFileFormat format)
{
    switch (format) {
    case ImageFileFormat::Png8:
    case ImageFileFormat::Png16:
        return QStringLiteral("png");
    case ImageFileFormat::Tiff:
        return QStringLiteral("tif");
    case ImageFileFormat::Raw:
        break;
    }
    return QStringLiteral("raw");
}

} // namespace

SnapshotSaver::SnapshotSaver(CameraRecordReader &records, QObject *parent)
    : QObject(parent), m_records(records), m_keeper(maxHeldSnapshots, ImageKeeper::defaultCopyLimit())
{
    m_pool.setMaxThreadCount(1);
}

SnapshotSaver::~SnapshotSaver()
{
    m_pool.waitForDone();
}

void SnapshotSaver::save(const std::shared_ptr<const CvxCPP::Image> &image, const SnapshotOptions &options)
{
    if (!image) {
        emit failed(tr("There is no picture to save yet."));
        return;
    }
    if (const QString problem = FileNamePattern(options.pattern).problem(); !problem.isEmpty()) {
        emit failed(tr("The snapshot was not saved: %1.").arg(problem));
        return;
    }
    const Job job{m_keeper.keep(image), options, m_correction};
    if (!job.image) {
        emit failed(tr("The snapshot was not saved, because earlier ones still wait for the disk."));
        return;
    }
    ++m_pending;
    m_records.read(this, [this, job](const CameraRecord &record) { write(job, record); });
}

void SnapshotSaver::write(const Job &job, const CameraRecord &record)
{
    m_pool.start([this, job, record] {
        const Outcome outcome = writeFile(job, record);
        QMetaObject::invokeMethod(
            this, [this, outcome] { report(outcome); }, Qt::QueuedConnection);
    });
}

SnapshotSaver::Outcome SnapshotSaver::writeFile(const Job &job, const CameraRecord &record)
{
    const SnapshotOptions &options = job.options;
    const QString extension = extensionOf(options.format);
    const QString pattern
        = options.folder + QLatin1Char('/') + options.pattern + QLatin1Char('.') + extension;
    if (pattern != m_lastPattern)
        m_lastNumber = 0;
    const NewFile file(options.folder, FileNamePattern(options.pattern), fileNameValues(record, *job.image),
        extension, m_lastNumber + 1);
    m_writer.setCorrection(job.correction);
    m_converter.setCorrection(placedCorrection(job.correction, job.image->GetInfo()));
    const std::string problem = m_writer.write(*job.image, file.path().toStdString(), options.format, record);
    if (!problem.empty())
        return {{}, {}, QString::fromStdString(problem)};
    m_lastPattern = pattern;
    m_lastNumber = file.number();
    const QImage thumbnail = thumbnailOf(rawImage(*job.image), {thumbnailSize, thumbnailSize}, m_converter);
    return {file.path(), thumbnail, {}};
}

void SnapshotSaver::report(const Outcome &outcome)
{
    --m_pending;
    if (outcome.problem.isEmpty())
        emit saved(outcome.path, outcome.thumbnail);
    else
        emit failed(tr("The snapshot was not saved: %1.").arg(outcome.problem));
}
